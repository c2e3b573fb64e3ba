// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFont>
#include <QStringList>
#include <vector>

#include "look/reports/colour_glyphs.h"
#include "look/reports/report_cells.h"
#include "look/reports/report_frame.h"
#include "look/reports/report_pages.h"

namespace nautrel {

/// The paper in the orientation that the list asks for, or needs.
QPageLayout turnedFor(const ListLayout& layout, const std::vector<ColumnNeed>& needs,
                      QPageLayout paper);

/// A list of rows: title and range, the heads of the columns and the page's number on every page.
/// Where the paper is too narrow for its numbers and words, its text is set smaller.
class ReportList : public ReportPages {
 public:
  ReportList(ReportFrame frame, ListLayout layout, ListCells cells, const QPageLayout& paper);

  int count() const override { return static_cast<int>(starts_.size()); }
  void paint(QPainter& painter, int page) const override;

 private:
  struct Column {
    double left = 0;
    double width = 0;
  };

  double fittingScale() const;
  void placeColumns();
  void wrapHeads();
  void breakPages();
  double lineHeight() const;
  double headsHeight() const;
  double heightOf(int lines) const;
  int linesOf(std::size_t row) const;
  bool fits(const ListCells::Cell& cell, std::size_t column) const;
  QStringList linesOf(std::size_t row, std::size_t column) const;
  double paintHeads(QPainter& painter, double top) const;
  double paintRow(QPainter& painter, std::size_t row, double top, bool shaded) const;
  /// Where a line of that width begins in its column, on its baseline.
  QPointF placeOf(double width, std::size_t column, double baseline) const;

  PageFrame frame_;
  ListLayout layout_;
  ListCells cells_;
  double scale_ = 1;  // of the text against the size that the template asks for
  QFont font_;
  QFont headFont_;
  PaperLines text_;
  std::vector<Column> columns_;
  std::vector<QStringList> heads_;
  std::vector<int> lines_;           // of each row
  std::vector<std::size_t> starts_;  // the first row of each page
};

}  // namespace nautrel
