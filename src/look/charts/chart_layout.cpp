// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_layout.h"

#include <QMarginsF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace nautrel {
namespace {

double boxDepth(const ChartData& data) {
  if (!isSpatial(data.kind)) return 0;
  return std::clamp(1.1 / static_cast<double>(std::max<std::size_t>(1, data.rows.size())), 0.08,
                    0.3);
}

double radians(int degrees) {
  return degrees * std::numbers::pi / 180;
}

}  // namespace

ChartLayout::ChartLayout(const ChartData& data, ChartTurn turn, const QFontMetricsF& font,
                         QRectF rect)
    : rect_(rect),
      turn_(isSpatial(data.kind) ? turn : ChartTurn{}),
      rows_(std::max(1, static_cast<int>(data.rows.size()))),
      depth_(boxDepth(data)),
      lineHeight_(font.height()),
      font_(font),
      space_(turn_, depth_, rect) {
  for (const ChartRow& row : data.rows) {
    widestLabel_ = std::max(widestLabel_, font.horizontalAdvance(row.label));
    if (!std::isfinite(row.value)) continue;
    greatest_ = std::max(greatest_, row.value);
    counts_ = counts_ && row.value == std::floor(row.value);
  }
  for (const int angle : {0, 45, 90}) {
    arrange(angle);
    if (labelsFit(1)) return;
  }
  while (stride_ < rows_ && !labelsFit(stride_)) ++stride_;
}

void ChartLayout::arrange(int angle) {
  angle_ = angle;
  // The steps follow from the height that the box gets, the box from the width of the steps'
  // labels: the second round settles it.
  for (int round = 0; round < 2; ++round) {
    const double height = -space_.along(0, 1, 0).y();
    const int mostSteps = std::clamp(static_cast<int>(height / (2.2 * lineHeight_)), 1, 10);
    axis_ = niceAxis(greatest_, counts_, mostSteps);
    widestValue_ = 0;
    for (int tick = 0; tick <= axis_.steps; ++tick)
      widestValue_ = std::max(widestValue_, font_.horizontalAdvance(axis_.label(tick)));
    space_ = ChartSpace(turn_, depth_, rect_.marginsRemoved(margins()));
  }
}

QMarginsF ChartLayout::margins() const {
  const double turned = radians(angle_);
  const double overhang = angle_ == 0    ? widestLabel_ / 2
                          : angle_ == 45 ? widestLabel_ * std::cos(turned)
                                         : lineHeight_ / 2;
  const double below = widestLabel_ * std::sin(turned) + lineHeight_ * std::cos(turned);
  const bool toTheRight = turn_.yaw < 0;
  const double left = std::max(widestValue_ + kChartGap, toTheRight ? 0 : overhang);
  const double right = angle_ == 0 || toTheRight ? overhang : 0;
  return {kChartPadding + left, kChartPadding + lineHeight_ * 1.5 + kChartGap,
          kChartPadding + right, kChartPadding + lineHeight_ + 2 * kChartGap + below + clearance()};
}

// What keeps a label's upper corner off the front edge of a turned box.
double ChartLayout::clearance() const {
  const QPointF edge = space_.along(1, 0, 0);
  if (angle_ == 45) return lineHeight_ / 3;
  if (angle_ == 90 || edge.x() <= 0) return 0;
  return std::abs(edge.y() / edge.x()) * widestLabel_ / 2;
}

bool ChartLayout::labelsFit(int stride) const {
  const QPointF apart = space_.along(stride * slot(), 0, 0);
  if (angle_ == 0)
    return apart.x() >= widestLabel_ + kChartGap || std::abs(apart.y()) >= lineHeight_;
  const double turned = radians(space_.showsRightWall() ? angle_ : -angle_);
  return std::abs(apart.x() * std::sin(turned) - apart.y() * std::cos(turned)) >= lineHeight_;
}

int ChartLayout::rowAt(QPointF point) const {
  const double width = space_.along(1, 0, 0).x();
  const int row =
      static_cast<int>(std::floor((point.x() - space_.at(0, 0, 0.5).x()) / width / slot()));
  const bool within =
      point.y() <= categoryLabelTop(std::clamp(row, 0, rows_ - 1)).y() + lineHeight_;
  return row >= 0 && row < rows_ && within ? row : -1;
}

QPointF ChartLayout::valueLabelEnd(int tick) const {
  const double share = static_cast<double>(tick) / axis_.steps;
  return space_.at(0, share, space_.showsRightWall() ? 0 : 1) - QPointF(kChartGap, 0);
}

QPointF ChartLayout::categoryLabelTop(int row) const {
  return space_.at(middle(row), 0, 1) + QPointF(0, kChartGap + clearance());
}

QTransform ChartLayout::categoryLabelPlace(int row) const {
  const QPointF top = categoryLabelTop(row);
  return QTransform::fromTranslate(top.x(), top.y())
      .rotate(space_.showsRightWall() ? angle_ : -angle_);
}

QRectF ChartLayout::categoryLabelRect(double width) const {
  if (angle_ == 0) return {-width / 2, 0, width, lineHeight_};
  return {space_.showsRightWall() ? 0 : -width, -lineHeight_ / 2, width, lineHeight_};
}

QRectF ChartLayout::valueTitle() const {
  return {rect_.left() + kChartPadding, rect_.top() + kChartPadding,
          rect_.width() - 2 * kChartPadding, lineHeight_};
}

QRectF ChartLayout::categoryTitle() const {
  return {rect_.left() + kChartPadding, rect_.bottom() - kChartPadding - lineHeight_,
          rect_.width() - 2 * kChartPadding, lineHeight_};
}

}  // namespace nautrel
