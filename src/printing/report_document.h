// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "printing/report_fault.h"

namespace nautrel {

/// What stands above and below every page of a report.
struct ReportFrame {
  std::string title = {};  // large on the first page
  std::string subtitle = {};
  /// The foot of a page, counted from 1; a bar parts left from right.
  std::function<std::string(int page, int pages)> footer = {};
};

/// A report whose template is a page of HTML.
struct PageReport : ReportFrame {
  std::string html = {};
  std::string folder = {};  // the one that its pictures come from
};

/// How a list looks on paper.
struct ListLayout {
  enum class Paper { Auto, Portrait, Landscape };
  enum class Alignment { Left, Center, Right };
  struct Column {
    std::string head;
    double width = 0;  // millimetres; how columns share out what their texts leave of the page
    Alignment alignment = Alignment::Left;
  };

  Paper paper = Paper::Auto;
  double textSize = 9;   // points
  int linesPerCell = 2;  // what needs more is cut
  std::vector<Column> columns;
};

/// A report whose template is a list: one line a row, on as many pages as it takes.
struct ListReport : ReportFrame {
  ListLayout layout = {};
  std::vector<std::string> cells = {};  // row after row, as many a row as there are columns

  std::size_t rows() const { return cells.size() / layout.columns.size(); }
};

using ReportDocument = std::variant<PageReport, ListReport>;

}  // namespace nautrel
