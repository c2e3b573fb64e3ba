// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>
#include <functional>

#include "look/bindings/spoken.h"
#include "platform/controls.h"

class QToolButton;

namespace nautrel {

/// The arrows of a data control: first, previous, next, last. The mouse does not give it the
/// focus; by key the arrow keys and Home and End press. `item`, a property of the form's design,
/// says what they go to.
class NavigatorBar : public QFrame, public Spoken {
  Q_OBJECT
  Q_PROPERTY(QString item READ item WRITE setItem)

 public:
  explicit NavigatorBar(QWidget* parent = nullptr);

  QString item() const { return item_; }
  void setItem(const QString& item);
  std::function<void(Navigator::Arrow)> pressed;

  QAccessible::Role spokenRole() const override { return QAccessible::ToolBar; }
  QString spokenValue() const override { return {}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void add(Navigator::Arrow arrow, const char* icon);
  void press(Navigator::Arrow arrow) const;

  QString item_;
};

}  // namespace nautrel
