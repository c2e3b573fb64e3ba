// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>

namespace nautrel {

/// How far a chart is turned, in degrees: to the side and upwards. Turned by 0 and 0 it is flat.
struct ChartTurn {
  double yaw = 0;
  double pitch = 0;
};

/// A parallel projection of the box that a chart is drawn in. Places in the box go from 0 to 1: x
/// along the categories, y along the values, z from the back wall to the front.
class ChartSpace {
 public:
  /// `depth` is the box's depth as a share of its width. The box is as large as the area holds.
  ChartSpace(ChartTurn turn, double depth, QRectF area);

  QPointF at(double x, double y, double z) const;
  /// The same for a direction.
  QPointF along(double x, double y, double z) const { return at(x, y, z) - at(0, 0, 0); }

  /// The right wall of the box is seen, not the left one.
  bool showsRightWall() const { return sinYaw_ < 0; }

 private:
  double sinYaw_, cosYaw_, sinPitch_, cosPitch_;
  double width_ = 0, height_ = 0, depth_ = 0;
  QPointF origin_;
};

}  // namespace nautrel
