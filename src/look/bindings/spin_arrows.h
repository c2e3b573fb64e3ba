// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "look/bindings/spoken.h"

class QLineEdit;
class QToolButton;

namespace nautrel {

/// Two arrows, one above the other, that repeat while they are held. The arrow keys work too. What
/// they step stands in the box before them in the layout.
class SpinArrows : public QWidget, public Spoken {
 public:
  explicit SpinArrows(QWidget* parent = nullptr);

  std::function<void(bool up)> stepped;

  QAccessible::Role spokenRole() const override { return QAccessible::SpinBox; }
  QString spokenValue() const override;
  QStringList spokenActions() const override;
  void doSpoken(const QString& action) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QToolButton* arrow(Qt::ArrowType type, bool up);
  void step(bool up) const;
};

}  // namespace nautrel
