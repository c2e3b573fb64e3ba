// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractButton>

#include "look/bindings/spoken.h"

namespace nautrel {

/// A swatch of one colour that is pressed like a button.
class ColorSample : public QAbstractButton, public Spoken {
  Q_OBJECT

 public:
  using QAbstractButton::QAbstractButton;
  void setColor(const QColor& color);

  QAccessible::Role spokenRole() const override { return QAccessible::Button; }
  QString spokenValue() const override;
  QStringList spokenActions() const override;
  void doSpoken(const QString& action) override;

  QSize sizeHint() const override { return {120, 60}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_;
};

}  // namespace nautrel
