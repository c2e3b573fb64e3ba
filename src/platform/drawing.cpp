// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/drawing.h"

#include <utility>

namespace nautrel {

Drawing::Drawing(Form& form, std::string name, Figure design, bool visible)
    : Control(form, std::move(name)), figure_(std::move(design)) {
  setVisible(visible);
}

DrawnShape::DrawnShape(Form& form, std::string name, Figure design, bool visible)
    : Drawing(form, std::move(name), std::move(design), visible) {}

void DrawnShape::setHeight(double height) {
  if (figure_.height == height) return;
  figure_.height = height;
  changed();
}

DrawnLine::DrawnLine(Form& form, std::string name, Point from, Point to, bool visible, long color)
    : Drawing(form, std::move(name),
              {.kind = Figure::Kind::Line,
               .left = from.x,
               .top = from.y,
               .width = to.x - from.x,
               .height = to.y - from.y,
               .color = color},
              visible) {}

DrawnLabel::DrawnLabel(Form& form, std::string name, std::string caption, Figure design,
                       bool visible)
    : Drawing(form, std::move(name), std::move(design), visible) {
  figure_.kind = Figure::Kind::Text;
  figure_.text = std::move(caption);
}

void DrawnLabel::setCaption(std::string caption) {
  if (figure_.text == caption) return;
  figure_.text = std::move(caption);
  changed();
}

}  // namespace nautrel
