// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/control.h"

namespace nautrel {

/// What a drawing looks like. Measures are twips from the top left of what holds it; a line runs
/// from (left, top) by width and height, which may be negative.
struct Figure {
  enum class Kind { Rectangle, Circle, Line, Text };
  Kind kind = Kind::Rectangle;
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  long color = 0;  // 0x00BBGGRR
  bool outlined = false;
  std::string text = {};
  bool alignRight = false;
};

/// A part of a picture. The drawings that stand in the same container and page make one picture,
/// in which a later one covers an earlier one; the look paints it as a whole.
class Drawing : public Control {
 public:
  const Figure& figure() const { return figure_; }
  bool sharesPictureWith(const Drawing& other) const {
    return container() == other.container() && page() == other.page();
  }

 protected:
  Drawing(Form& form, std::string name, Figure design, bool visible);

  Figure figure_;
};

/// A filled rectangle or circle.
class DrawnShape : public Drawing {
 public:
  DrawnShape(Form& form, std::string name, Figure design, bool visible = true);
  double Height() const { return figure_.height; }
  /// A height below 0 shows as 0.
  void setHeight(double height);
};

class DrawnLine : public Drawing {
 public:
  struct Point {
    double x = 0;
    double y = 0;
  };
  DrawnLine(Form& form, std::string name, Point from, Point to, bool visible = true,
            long color = 0);
};

/// A text in a picture.
class DrawnLabel : public Drawing {
 public:
  DrawnLabel(Form& form, std::string name, std::string caption, Figure design, bool visible = true);
  const std::string& caption() const { return figure_.text; }
  void setCaption(std::string caption);
};

}  // namespace nautrel
