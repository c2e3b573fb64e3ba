// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QDropEvent;
class QWidget;

namespace nautrel {

/// Takes a file that is dropped anywhere on a page, its boxes included, which would take the name
/// of the file for a text.
class FileDrop : public QObject {
 public:
  FileDrop(QWidget& page, std::function<void(const QString& path)> dropped);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const QString& path)> dropped_;
};

}  // namespace nautrel
