// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractButton>

namespace nautrel {

/// A swatch of one colour that is pressed like a button.
class ColorSample : public QAbstractButton {
  Q_OBJECT

 public:
  using QAbstractButton::QAbstractButton;
  void setColor(const QColor& color);
  QSize sizeHint() const override { return {120, 60}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_;
};

}  // namespace nautrel
