// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFontMetricsF>
#include <QRectF>
#include <QTransform>

#include "look/charts/chart_axis.h"
#include "look/charts/chart_data.h"
#include "look/charts/chart_space.h"

namespace nautrel {

/// How far apart a chart's parts stand.
constexpr double kChartPadding = 10;
constexpr double kChartGap = 6;

/// Where everything of a chart stands in its rectangle, so that no label is cut and none touches
/// another at any size.
class ChartLayout {
 public:
  ChartLayout(const ChartData& data, ChartTurn turn, const QFontMetricsF& font, QRectF rect);

  const ChartAxis& axis() const { return axis_; }
  const ChartSpace& space() const { return space_; }

  /// The width that one row takes of the box.
  double slot() const { return 1.0 / rows_; }
  /// A row's middle along the categories.
  double middle(int row) const { return (row + 0.5) * slot(); }
  /// The row at a point of the widget, or -1.
  int rowAt(QPointF point) const;

  /// Where the value labels end, beside the box.
  QPointF valueLabelEnd(int tick) const;
  /// Turns and moves the painter to where a row's label hangs below the front edge.
  QTransform categoryLabelPlace(int row) const;
  /// The label's rectangle there, for a text of this width.
  QRectF categoryLabelRect(double width) const;
  /// Every how many rows a label has room.
  int labelStride() const { return stride_; }
  double lineHeight() const { return lineHeight_; }
  QRectF valueTitle() const;
  QRectF categoryTitle() const;

 private:
  void arrange(int angle);
  bool labelsFit(int stride) const;
  QMarginsF margins() const;
  double clearance() const;
  QPointF categoryLabelTop(int row) const;

  QRectF rect_;
  ChartTurn turn_;
  int rows_;
  double depth_;
  double greatest_ = 0;
  bool counts_ = true;
  double lineHeight_;
  double widestLabel_ = 0;
  double widestValue_ = 0;
  QFontMetricsF font_;
  ChartAxis axis_;
  ChartSpace space_;
  /// 0, 45 or 90: how far the row labels are turned to have room.
  int angle_ = 0;
  int stride_ = 1;
};

}  // namespace nautrel
