// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_painter.h"

#include <algorithm>
#include <cmath>

namespace nautrel {
namespace {

constexpr double kBarShare = 0.62;
constexpr double kFrontOfSolids = 0.85;
constexpr double kBackOfSolids = 0.15;
constexpr double kSeriesWidth = 2;
constexpr double kMarkRadius = 3.5;

bool isDark(const QColor& paper) {
  return paper.lightness() < 128;
}

QColor mix(const QColor& from, const QColor& to, double share) {
  const auto part = [share](int start, int end) {
    return static_cast<int>(std::lround(start + (end - start) * share));
  };
  return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}

}  // namespace

ChartPainter::ChartPainter(QPainter& painter, const ChartData& data, const ChartLayout& layout,
                           const QPalette& palette)
    : painter_(painter),
      data_(data),
      layout_(layout),
      space_(layout.space()),
      paper_(palette.color(QPalette::Base)),
      text_(palette.color(QPalette::Text)),
      series_(isDark(paper_) ? QColor(0x4f, 0xa8, 0xe0) : QColor(0x1f, 0x7a, 0xb8)),
      top_(mix(series_, Qt::white, 0.35)),
      side_(mix(series_, Qt::black, 0.25)),
      edge_(mix(series_, Qt::black, 0.4)),
      rows_(static_cast<int>(data.rows.size())),
      scale_(painter.device()->devicePixelRatioF()) {}

void ChartPainter::paint() {
  painter_.setRenderHint(QPainter::Antialiasing);
  paintWalls();
  paintGrid();
  paintTitles();
  paintValueLabels();
  paintCategoryLabels();
  switch (data_.kind) {
    case ChartKind::Bars3D:
      return paintBarsInSpace();
    case ChartKind::Bars:
      return paintBars();
    case ChartKind::Line:
      return paintLine();
    case ChartKind::Area3D:
      return paintAreaInSpace();
  }
}

// Flat lines and edges lie on whole device pixels, else they blur on every scale but one.
QPointF ChartPainter::pixel(QPointF point, double width) const {
  const double shift = std::lround(width * scale_) % 2 == 1 ? 0.5 : 0;
  return {(std::floor(point.x() * scale_) + shift) / scale_,
          (std::floor(point.y() * scale_) + shift) / scale_};
}

QColor ChartPainter::shade(double shareOfText) const {
  return mix(paper_, text_, shareOfText);
}

double ChartPainter::height(int row) const {
  return layout_.axis().share(data_.rows[static_cast<std::size_t>(row)].value);
}

void ChartPainter::paintWalls() {
  if (!isSpatial(data_.kind)) return;
  const double side = space_.showsRightWall() ? 1 : 0;
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(shade(0.03));
  painter_.drawPolygon(
      QPolygonF{space_.at(0, 0, 0), space_.at(1, 0, 0), space_.at(1, 1, 0), space_.at(0, 1, 0)});
  painter_.setBrush(shade(0.06));
  painter_.drawPolygon(QPolygonF{space_.at(side, 0, 0), space_.at(side, 0, 1),
                                 space_.at(side, 1, 1), space_.at(side, 1, 0)});
  painter_.setBrush(shade(0.1));
  painter_.drawPolygon(
      QPolygonF{space_.at(0, 0, 0), space_.at(1, 0, 0), space_.at(1, 0, 1), space_.at(0, 0, 1)});
}

void ChartPainter::paintGrid() {
  const double side = space_.showsRightWall() ? 1 : 0;
  for (int tick = 0; tick <= layout_.axis().steps; ++tick) {
    const double y = static_cast<double>(tick) / layout_.axis().steps;
    QPolygonF line{space_.at(side, y, 1), space_.at(side, y, 0), space_.at(1 - side, y, 0)};
    if (!isSpatial(data_.kind))
      for (QPointF& point : line) point = pixel(point, 1);
    painter_.setPen(QPen(shade(tick == 0 ? 0.45 : 0.15), 1));
    painter_.drawPolyline(line);
  }
}

void ChartPainter::paintTitles() {
  QFont font = painter_.font();
  const QFont plain = font;
  font.setBold(true);
  painter_.setFont(font);
  painter_.setPen(shade(0.8));
  painter_.drawText(layout_.valueTitle(), Qt::AlignLeft | Qt::AlignVCenter, data_.valueTitle);
  painter_.drawText(layout_.categoryTitle(), Qt::AlignHCenter | Qt::AlignVCenter,
                    data_.categoryTitle);
  painter_.setFont(plain);
}

void ChartPainter::paintValueLabels() {
  const double height = layout_.lineHeight();
  painter_.setPen(shade(0.75));
  for (int tick = 0; tick <= layout_.axis().steps; ++tick) {
    const QPointF end = layout_.valueLabelEnd(tick);
    painter_.drawText(QRectF(0, end.y() - height / 2, end.x(), height),
                      Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                      layout_.axis().label(tick));
  }
}

void ChartPainter::paintCategoryLabels() {
  const QFontMetricsF font(painter_.font());
  painter_.setPen(shade(0.75));
  for (int row = 0; row < rows_; row += layout_.labelStride()) {
    const QString& label = data_.rows[static_cast<std::size_t>(row)].label;
    painter_.save();
    painter_.setTransform(layout_.categoryLabelPlace(row), true);
    painter_.drawText(layout_.categoryLabelRect(font.horizontalAdvance(label)),
                      Qt::AlignCenter | Qt::TextDontClip, label);
    painter_.restore();
  }
}

void ChartPainter::paintBars() {
  const double half = layout_.slot() * kBarShare / 2;
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(series_);
  for (int row = 0; row < rows_; ++row) {
    const double x = layout_.middle(row);
    painter_.drawRect(
        QRectF(pixel(space_.at(x - half, height(row), 0), 0), pixel(space_.at(x + half, 0, 0), 0)));
  }
}

void ChartPainter::paintLine() {
  QPolygonF line;
  for (int row = 0; row < rows_; ++row) line << space_.at(layout_.middle(row), height(row), 0);
  painter_.setPen(QPen(series_, kSeriesWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawPolyline(line);
  painter_.setBrush(paper_);
  for (const QPointF& point : line) painter_.drawEllipse(point, kMarkRadius, kMarkRadius);
}

void ChartPainter::paintFace(const QPolygonF& face, const QColor& color) {
  painter_.setPen(QPen(edge_, 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.setBrush(color);
  painter_.drawPolygon(face);
}

void ChartPainter::paintPrism(const Prism& prism, double top) {
  const auto& [left, right, back, front] = prism;
  const double side = space_.showsRightWall() ? left : right;
  paintFace({space_.at(side, 0, front), space_.at(side, 0, back), space_.at(side, top, back),
             space_.at(side, top, front)},
            side_);
  paintFace({space_.at(left, top, front), space_.at(right, top, front), space_.at(right, top, back),
             space_.at(left, top, back)},
            top_);
  paintFace({space_.at(left, 0, front), space_.at(right, 0, front), space_.at(right, top, front),
             space_.at(left, top, front)},
            series_);
}

// The far side first, so that what stands nearer covers it.
void ChartPainter::paintBarsInSpace() {
  const double half = layout_.slot() * kBarShare / 2;
  for (int step = 0; step < rows_; ++step) {
    const int row = space_.showsRightWall() ? rows_ - 1 - step : step;
    if (height(row) <= 0) continue;
    const double x = layout_.middle(row);
    paintPrism({x - half, x + half, kBackOfSolids, kFrontOfSolids}, height(row));
  }
}

void ChartPainter::paintAreaInSpace() {
  if (rows_ < 2) return paintBarsInSpace();
  const bool fromRight = space_.showsRightWall();
  const auto place = [&](int row, double z) {
    return space_.at(layout_.middle(row), height(row), z);
  };
  const auto slope = [&](int row) { return height(row + 1) - height(row); };
  for (int step = 0; step < rows_ - 1; ++step) {
    const int row = fromRight ? rows_ - 2 - step : step;
    paintFace({place(row, kFrontOfSolids), place(row + 1, kFrontOfSolids),
               place(row + 1, kBackOfSolids), place(row, kBackOfSolids)},
              slope(row) < 0 ? mix(series_, top_, 0.5) : top_);
  }
  const int last = fromRight ? 0 : rows_ - 1;
  const double x = layout_.middle(last);
  if (height(last) > 0)
    paintFace({space_.at(x, 0, kFrontOfSolids), space_.at(x, 0, kBackOfSolids),
               place(last, kBackOfSolids), place(last, kFrontOfSolids)},
              side_);
  QPolygonF front{space_.at(layout_.middle(0), 0, kFrontOfSolids)};
  for (int row = 0; row < rows_; ++row) front << place(row, kFrontOfSolids);
  front << space_.at(layout_.middle(rows_ - 1), 0, kFrontOfSolids);
  paintFace(front, series_);
}

}  // namespace nautrel
