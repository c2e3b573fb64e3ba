// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPainter>
#include <QPalette>

#include "look/charts/chart_layout.h"

namespace nautrel {

/// Draws a chart where its layout says, in the colours of a light or a dark desktop.
class ChartPainter {
 public:
  ChartPainter(QPainter& painter, const ChartData& data, const ChartLayout& layout,
               const QPalette& palette);

  void paint();

 private:
  struct Prism {
    double left, right, back, front;
  };

  void paintWalls();
  void paintGrid();
  void paintTitles();
  void paintValueLabels();
  void paintCategoryLabels();
  void paintBars();
  void paintLine();
  void paintBarsInSpace();
  void paintAreaInSpace();
  void paintPrism(const Prism& prism, double height);
  void paintFace(const QPolygonF& face, const QColor& color);

  double height(int row) const;
  QPointF pixel(QPointF point, double width) const;
  QColor shade(double shareOfText) const;

  QPainter& painter_;
  const ChartData& data_;
  const ChartLayout& layout_;
  const ChartSpace& space_;
  QColor paper_, text_, series_, top_, side_, edge_;
  int rows_;
  double scale_;
};

}  // namespace nautrel
