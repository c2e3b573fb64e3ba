// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_space.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace nautrel {
namespace {

double radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

}  // namespace

ChartSpace::ChartSpace(ChartTurn turn, double depth, QRectF area)
    : sinYaw_(std::sin(radians(turn.yaw))),
      cosYaw_(std::cos(radians(turn.yaw))),
      sinPitch_(std::sin(radians(turn.pitch))),
      cosPitch_(std::cos(radians(turn.pitch))) {
  // The floor seen from above takes its part of the height; the values keep at least half of it.
  const double floorOfWidth = (std::abs(sinYaw_) + depth * cosYaw_) * sinPitch_;
  width_ = std::max(1.0, area.width() / (cosYaw_ + depth * std::abs(sinYaw_)));
  if (floorOfWidth > 0) width_ = std::min(width_, area.height() / 2 / floorOfWidth);
  depth_ = depth * width_;
  height_ = std::max(1.0, (area.height() - floorOfWidth * width_) / cosPitch_);

  const double drawnWidth = width_ * cosYaw_ + depth_ * std::abs(sinYaw_);
  origin_.setX(area.center().x() - drawnWidth / 2 + std::max(0.0, sinYaw_) * depth_);
  origin_.setY(area.top() + height_ * cosPitch_ + std::max(0.0, -sinYaw_) * width_ * sinPitch_);
}

QPointF ChartSpace::at(double x, double y, double z) const {
  x *= width_;
  y *= height_;
  z *= depth_;
  return origin_ + QPointF(x * cosYaw_ - z * sinYaw_,
                           (x * sinYaw_ + z * cosYaw_) * sinPitch_ - y * cosPitch_);
}

}  // namespace nautrel
