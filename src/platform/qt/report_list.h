#pragma once

#include <QFont>
#include <QStringList>
#include <vector>

#include "platform/qt/report_pages.h"

namespace nautrel {

/// The paper in the orientation that the list asks for, or needs.
QPageLayout turnedFor(const ListLayout& layout, QPageLayout paper);

/// The widths of characters of one font, for a first look at whether a text fits.
class CharacterWidths {
 public:
  explicit CharacterWidths(const QFont& font);
  double of(const QString& text) const;

 private:
  QFontMetricsF metrics_;
  std::vector<double> widths_;
};

/// A list of rows: title and range, the heads of the columns and the page's number on every page.
class ReportList : public ReportPages {
 public:
  ReportList(ListReport report, const QPageLayout& paper);

  int count() const override { return static_cast<int>(starts_.size()); }
  void paint(QPainter& painter, int page) const override;

 private:
  struct Column {
    double left = 0;
    double width = 0;
  };

  void placeColumns();
  void breakPages();
  double titleHeight(int page) const;
  double lineHeight() const;
  int linesOf(std::size_t row) const;
  double heightOf(int lines) const;
  QString cell(std::size_t row, std::size_t column) const;
  QStringList wrapped(const QString& text, double width) const;
  double paintTitle(QPainter& painter, int page) const;
  double paintHeads(QPainter& painter, double top) const;
  double paintRow(QPainter& painter, std::size_t row, double top, bool shaded) const;
  void paintCell(QPainter& painter, std::size_t row, std::size_t column, double top) const;
  void paintFooter(QPainter& painter, int page) const;
  void paintLine(QPainter& painter, const QString& line, std::size_t column, double top) const;

  ListReport report_;
  QFont font_;
  CharacterWidths widths_;
  std::vector<Column> columns_;
  std::vector<std::size_t> starts_;  // the first row of each page
};

}  // namespace nautrel
