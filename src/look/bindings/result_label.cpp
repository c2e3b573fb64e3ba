// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/result_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace nautrel {
namespace {

constexpr int kLeastCharacters = 4;

}  // namespace

// A long figure takes no room away from what stands around it.
QSize ResultLabel::minimumSizeHint() const {
  const auto whole = QLabel::minimumSizeHint();
  return {qMin(whole.width(), fontMetrics().averageCharWidth() * kLeastCharacters), whole.height()};
}

QString ResultLabel::fitting() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width() - 2 * margin());
}

bool ResultLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || fitting() == text()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

void ResultLabel::paintEvent(QPaintEvent* event) {
  const auto shown = fitting();
  if (shown == text()) return QLabel::paintEvent(event);
  QPainter painter(this);
  drawFrame(&painter);
  const int edge = margin();
  style()->drawItemText(&painter, contentsRect().adjusted(edge, edge, -edge, -edge),
                        static_cast<int>(alignment()), palette(), isEnabled(), shown,
                        foregroundRole());
}

}  // namespace nautrel
