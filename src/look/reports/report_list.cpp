// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_list.h"

#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "look/convert.h"
#include "look/reports/report_style.h"

namespace nautrel {
namespace {

constexpr int kMostHeadLines = 3;
constexpr double kSmallestText = 0.7;
// A hair of a point, for sums of widths that should be equal.
constexpr double kSlack = 4;

// Of the height of a line.
constexpr double kRowPadding = 0.45;
constexpr double kHeadPadding = 0.8;

double indent(ListLayout::Alignment alignment, double space) {
  switch (alignment) {
    case ListLayout::Alignment::Right:
      return space;
    case ListLayout::Alignment::Center:
      return space / 2;
    default:
      return 0;
  }
}

/// The text in lines of a width, the last one cut where more would follow.
QStringList wrapped(const QString& text, const QFont& font, double width, int mostLines) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    if (lines.size() == mostLines - 1) {
      lines << QFontMetricsF(font).elidedText(text.mid(line.textStart()), Qt::ElideRight, width);
      break;
    }
    lines << text.mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  return lines;
}

}  // namespace

QPageLayout turnedFor(const ListLayout& layout, const std::vector<ColumnNeed>& needs,
                      QPageLayout paper) {
  using Paper = ListLayout::Paper;
  if (layout.paper == Paper::Portrait) paper.setOrientation(QPageLayout::Portrait);
  if (layout.paper == Paper::Landscape ||
      (layout.paper == Paper::Auto &&
       sumOf(needs, &ColumnNeed::enough) >
           paper.paintRect(QPageLayout::Point).width() * kTwipsPerPoint))
    paper.setOrientation(QPageLayout::Landscape);
  return paper;
}

ReportList::ReportList(ReportFrame frame, ListLayout layout, ListCells cells,
                       const QPageLayout& paper)
    : ReportPages(paper),
      frame_(std::move(frame), body()),
      layout_(std::move(layout)),
      cells_(std::move(cells)),
      scale_(fittingScale()),
      font_(paperFont(layout_.textSize * scale_)),
      headFont_(paperFont(layout_.textSize * scale_, kHeadWeight)),
      text_(font_) {
  placeColumns();
  wrapHeads();
  breakPages();
}

// Fonts come in whole twips; rounded up, words would be a hair too wide for their columns.
double ReportList::fittingScale() const {
  const double words = sumOf(cells_.needs(), &ColumnNeed::words);
  const double full = paperFont(layout_.textSize).pixelSize();
  return std::floor(std::clamp(body().width() / words, kSmallestText, 1.0) * full) / full;
}

void ReportList::placeColumns() {
  const double padding = ListCells::padding(layout_.textSize) * scale_;
  double left = body().left();
  for (const double width : columnWidths(cells_.needs(), body().width() / scale_)) {
    columns_.push_back({left + padding, std::max(width * scale_ - 2 * padding, 1.0)});
    left += width * scale_;
  }
}

void ReportList::wrapHeads() {
  for (std::size_t i = 0; i < columns_.size(); ++i)
    heads_.push_back(wrapped(toQt(layout_.columns[i].head).simplified(), headFont_,
                             columns_[i].width + kSlack, kMostHeadLines));
}

// Every page takes at least one row, or a row higher than the paper would never end.
void ReportList::breakPages() {
  starts_.push_back(0);
  double left = frame_.room(0).height() - headsHeight();
  for (std::size_t row = 0; row < cells_.rows(); ++row) {
    lines_.push_back(linesOf(row));
    const double height = heightOf(lines_.back());
    if (height > left && row > starts_.back()) {
      starts_.push_back(row);
      left = frame_.room(1).height() - headsHeight();
    }
    left -= height;
  }
}

double ReportList::lineHeight() const {
  return QFontMetricsF(font_).height();
}

double ReportList::headsHeight() const {
  qsizetype lines = 1;
  for (const auto& head : heads_) lines = std::max(lines, head.size());
  return (static_cast<double>(lines) + kHeadPadding) * lineHeight();
}

double ReportList::heightOf(int lines) const {
  return (lines + kRowPadding) * lineHeight();
}

bool ReportList::fits(const ListCells::Cell& cell, std::size_t column) const {
  return cell.width * scale_ <= columns_[column].width + kSlack;
}

int ReportList::linesOf(std::size_t row) const {
  qsizetype lines = 1;
  for (std::size_t column = 0; column < columns_.size(); ++column)
    if (!fits(cells_.at(row, column), column)) lines = std::max(lines, linesOf(row, column).size());
  return static_cast<int>(lines);
}

// A number that has no room is cut on its one line: broken in two it would read as two.
QStringList ReportList::linesOf(std::size_t row, std::size_t column) const {
  const auto& cell = cells_.at(row, column);
  if (fits(cell, column)) return {cell.text};
  return wrapped(cell.text, font_, columns_[column].width + kSlack,
                 cell.figure ? 1 : layout_.linesPerCell);
}

void ReportList::paint(QPainter& painter, int page) const {
  const auto first = starts_[static_cast<std::size_t>(page)];
  const auto end = page + 1 < count() ? starts_[static_cast<std::size_t>(page) + 1] : cells_.rows();
  frame_.paint(painter, page, count());
  double top = paintHeads(painter, frame_.room(page).top());
  painter.setFont(font_);
  painter.setPen(paper::kInk);
  for (auto row = first; row < end; ++row)
    top = paintRow(painter, row, top, (row - first) % 2 == 1);
}

double ReportList::paintHeads(QPainter& painter, double top) const {
  const double height = headsHeight();
  const QFontMetricsF metrics(headFont_);
  painter.fillRect(QRectF(body().left(), top, body().width(), height), paper::kHeadBand);
  painter.setFont(headFont_);
  painter.setPen(paper::kInk);
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    double y = top + height - kHeadPadding / 2 * lineHeight() -
               static_cast<double>(heads_[column].size()) * lineHeight() + metrics.ascent();
    for (const auto& line : heads_[column]) {
      drawPaperText(painter, placeOf(metrics.horizontalAdvance(line), column, y), line);
      y += lineHeight();
    }
  }
  return top + height;
}

double ReportList::paintRow(QPainter& painter, std::size_t row, double top, bool shaded) const {
  const double height = heightOf(lines_[row]);
  const QFontMetricsF metrics(font_);
  if (shaded) painter.fillRect(QRectF(body().left(), top, body().width(), height), paper::kShade);
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    const auto& cell = cells_.at(row, column);
    double y = top + kRowPadding / 2 * lineHeight() + metrics.ascent();
    if (cell.text.isEmpty()) continue;
    if (fits(cell, column)) {
      const auto at = placeOf(cell.width * scale_, column, y);
      cell.figure ? text_.drawFigure(painter, at, cell.text) : text_.draw(painter, at, cell.text);
      continue;
    }
    for (const auto& line : linesOf(row, column)) {
      text_.draw(painter, placeOf(metrics.horizontalAdvance(line), column, y), line);
      y += lineHeight();
    }
  }
  return top + height;
}

QPointF ReportList::placeOf(double width, std::size_t column, double baseline) const {
  const auto& [left, room] = columns_[column];
  return {left + indent(layout_.columns[column].alignment, room - width), baseline};
}

}  // namespace nautrel
