// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace nautrel {

class Program;
class QtLooks;

/// What a key means before the widget that has the focus sees it: pasting, the commands of the menu
/// bar, the access keys of the window in front.
class Keyboard : public QObject {
 public:
  Keyboard(Program& program, const QtLooks& looks);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool belongsToFrame(const QWidget& widget) const;
  bool announced(const QWidget& widget, QKeyEvent& key) const;
  bool pressed(const QKeyEvent& key) const;

  Program& program_;
  const QtLooks& looks_;
};

}  // namespace nautrel
