// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace nautrel {

enum class ChartKind { Bars3D = 0, Bars = 1, Line = 3, Area3D = 4 };

struct ChartRow {
  QString label;
  double value = 0;
};

/// One series over labelled rows. Values below 0 are drawn as 0.
struct ChartData {
  QString categoryTitle;
  QString valueTitle;
  std::vector<ChartRow> rows;
  ChartKind kind = ChartKind::Line;
  /// Whether the user may turn a chart that is drawn in space.
  bool rotation = false;
};

bool isSpatial(ChartKind kind);

/// The titles and the rows, one a line, separated by tabs, as a spreadsheet pastes them; numbers
/// as the user's locale writes them, without grouping.
QString tabSeparated(const ChartData& data);

/// The whole chart in words, for those who hear it.
QString describe(const ChartData& data);

/// One row in words: "2019: 12".
QString describe(const ChartRow& row);

}  // namespace nautrel
