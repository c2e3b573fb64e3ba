// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "platform/text.h"
#include "platform/value.h"
#include "store/database.h"

namespace nautrel {

/// Told after each dive of a pass how many are done.
using DiveDone = std::function<void(int)>;

/// A record and the number of the dive that holds it.
struct RecordFigure {
  std::string value;
  std::string number = "0";
};

/// How many dives, and their share of all dives: "33 %".
struct ShareFigure {
  int dives = 0;
  std::string percent = "0 %";
};

/// All figures of the statistic as the texts that are shown, stored and printed. Times are in
/// minutes, the whole time in hours, depths in feet.
struct StatisticFigures {
  int dives = 0;
  Value firstNumber;
  Value lastNumber;

  std::string wholeDivetime;
  std::string middleDivetime;
  RecordFigure longest{"0"};
  RecordFigure shortest{"999"};
  RecordFigure deepest{"0"};
  RecordFigure shallowest{"999"};
  std::string middleDepth;

  /// Up to 30, 60, 90, 120, 150 feet, and deeper.
  std::array<ShareFigure, 6> depthBands;
  ShareFigure sweetWater;
  ShareFigure saltWater;
  ShareFigure fromBoat;
  ShareFigure fromShore;
  ShareFigure repetitive;
  ShareFigure decoStop;
};

/// The columns of `Logbuch` that each pass needs.
Columns statisticColumns();
Columns yearColumns();
Columns monthColumns();

/// Evaluates all dives in one pass. Raises 13 (a time or depth that is no number), 94 (one that is
/// Null, or the Null number of a record dive), 6 (sums too large), 3021 (no dives).
StatisticFigures countStatistic(Recordset& dives, const Locale& locale, const DiveDone& done);

/// A row of a graph: its label on the axis and its value as text.
struct GraphRow {
  std::string label;
  std::string value;
};

/// The dives of ten years, and the greatest year of the logbook as its dive has it.
struct YearFigures {
  std::vector<GraphRow> rows;
  std::string greatestYear = "0";
};

/// Counts the dives of `lastYear` and the nine years before it. Raises 13 for a year that is no
/// number, 94 for Null.
YearFigures countYears(Recordset& dives, int lastYear, const Locale& locale, const DiveDone& done);

/// The share of all dives, in per cent, of the months "01" to "12", unlabelled months counting in
/// the whole only. Raises 6 without dives.
std::array<std::string, 12> countMonths(Recordset& dives, const Locale& locale,
                                        const DiveDone& done);

}  // namespace nautrel
