// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/color_sample.h"

#include <QPainter>

namespace nautrel {
namespace {

constexpr int kFocusInset = 4;

}  // namespace

void ColorSample::setColor(const QColor& color) {
  if (color_ == color) return;
  color_ = color;
  update();
}

QString ColorSample::spokenValue() const {
  return QStringLiteral("red %1, green %2, blue %3")
      .arg(color_.red())
      .arg(color_.green())
      .arg(color_.blue());
}

QStringList ColorSample::spokenActions() const {
  return {QAccessibleActionInterface::pressAction()};
}

void ColorSample::doSpoken(const QString&) {
  click();
}

void ColorSample::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(isDown() ? QPalette::Highlight : QPalette::Dark));
  painter.setBrush(color_);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!hasFocus()) return;
  // A line that stands out from every colour, the one of the sample's own brightness included.
  painter.setPen(QPen(color_.lightness() > 127 ? Qt::black : Qt::white, 1, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(kFocusInset, kFocusInset, -kFocusInset - 1, -kFocusInset - 1));
}

}  // namespace nautrel
