// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/file_drop.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <utility>

namespace nautrel {
namespace {

QString fileIn(const QEvent& event) {
  const auto urls = static_cast<const QDropEvent&>(event).mimeData()->urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

FileDrop::FileDrop(QWidget& page, std::function<void(const QString& path)> dropped)
    : dropped_(std::move(dropped)) {
  page.setAcceptDrops(true);
  page.installEventFilter(this);
  for (auto* part : page.findChildren<QWidget*>()) part->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
  const auto kind = event->type();
  if (kind != QEvent::DragEnter && kind != QEvent::DragMove && kind != QEvent::Drop) return false;
  const auto file = fileIn(*event);
  if (file.isEmpty()) return false;
  static_cast<QDropEvent*>(event)->setDropAction(Qt::CopyAction);
  event->accept();
  if (kind == QEvent::Drop) dropped_(QDir::toNativeSeparators(file));
  return true;
}

}  // namespace nautrel
