// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/window_place.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

namespace nautrel {
namespace {

constexpr int kTitleHeight = 24;
constexpr int kLeastToGrasp = 48;  // of the title bar, in pixels

bool canBeGrasped(const QRect& window, const QList<QRect>& screens) {
  const QRect title(window.topLeft(), QSize(window.width(), kTitleHeight));
  return std::any_of(screens.begin(), screens.end(), [&](const QRect& screen) {
    const auto seen = screen & title;
    return seen.width() >= std::min(kLeastToGrasp, window.width()) && seen.height() > 0;
  });
}

int distance(const QPoint& point, const QRect& screen) {
  const QPoint nearest(std::clamp(point.x(), screen.left(), screen.right()),
                       std::clamp(point.y(), screen.top(), screen.bottom()));
  return (point - nearest).manhattanLength();
}

QRect inside(QRect window, const QRect& screen) {
  window.setSize(window.size().boundedTo(screen.size()));
  window.moveLeft(std::clamp(window.left(), screen.left(), screen.right() + 1 - window.width()));
  window.moveTop(std::clamp(window.top(), screen.top(), screen.bottom() + 1 - window.height()));
  return window;
}

}  // namespace

QRect pulledBack(const QRect& window, const QList<QRect>& screens) {
  if (screens.isEmpty()) return window;
  QRect all;
  for (const auto& screen : screens) all |= screen;
  const bool fits = window.width() <= all.width() && window.height() <= all.height();
  if (fits && canBeGrasped(window, screens)) return window;
  return inside(
      window,
      *std::min_element(screens.begin(), screens.end(), [&](const QRect& one, const QRect& other) {
        return distance(window.topLeft(), one) < distance(window.topLeft(), other);
      }));
}

QSize roomOn(const QScreen& screen) {
  constexpr QSize kFrame(16, 48);
  return screen.availableGeometry().size() - kFrame;
}

void fitInto(const QSize& room, QDialog& dialog) {
  if (dialog.layout() == nullptr) return;  // the system's own
  dialog.layout()->setSizeConstraint(QLayout::SetNoConstraint);
  dialog.resize(dialog.size().boundedTo(room));
}

void scrollInto(const QSize& room, QDialog& dialog) {
  if (dialog.layout() == nullptr || dialog.sizeHint().boundedTo(room) == dialog.sizeHint()) return;
  auto* content = new QWidget;
  content->setLayout(dialog.layout());
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidget(content);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(area);
  if (auto* buttons = content->findChild<QDialogButtonBox*>()) layout->addWidget(buttons);
  dialog.resize((area->sizeHint() + QSize(60, 80)).boundedTo(room));
}

void frameDialog(QDialog& dialog, bool closable) {
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowSystemMenuHint |
                        (closable ? Qt::WindowCloseButtonHint : Qt::WindowType(0)));
}

}  // namespace nautrel
