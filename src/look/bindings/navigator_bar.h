// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>
#include <functional>

#include "platform/controls.h"

class QToolButton;

namespace nautrel {

/// The arrows of a data control: first, previous, next, last. The mouse does not give it the
/// focus; by key the arrow keys and Home and End press.
class NavigatorBar : public QFrame {
 public:
  explicit NavigatorBar(QWidget* parent = nullptr);

  std::function<void(Navigator::Arrow)> pressed;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void add(Navigator::Arrow arrow, const char* icon, const char* name);
  void press(Navigator::Arrow arrow) const;
};

}  // namespace nautrel
