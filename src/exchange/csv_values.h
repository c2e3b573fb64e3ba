// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/csv_columns.h"
#include "exchange/dates.h"
#include "exchange/import_source.h"

namespace nautrel::exchange {

/// A number and the unit behind it, if one is named: "25.5 m (84 ft)".
struct Measure {
  double number = 0;
  CsvUnit unit = CsvUnit::None;
};

/// Which decimal sign the numbers of a file have, as far as its cells tell.
class DecimalSign {
 public:
  void look(std::string_view cell);
  /// 0 where no cell tells it, or one tells otherwise than another.
  char known() const;
  /// The sign of a cell such as "3,000", where nothing tells whether it groups digits; 0 for any
  /// other.
  char doubtful(std::string_view cell) const;

 private:
  bool point_ = false;
  bool comma_ = false;
};

/// Reads a number with a point or a comma; of two signs the last one is the decimal one, and so is
/// a single one unless the file's is another and this one may group digits. Nothing for a text that
/// does not begin with a number.
std::optional<Measure> readMeasure(std::string_view cell, const DecimalSign& sign = {});

/// A dive time in its parts, as the cell has them: "45", "51 min", "0:45", "1:02:30".
struct RawDuration {
  int parts = 0;  // 1 for a number, else how many stand between colons
  double first = 0;
  double second = 0;
  double third = 0;
  CsvUnit unit = CsvUnit::None;
};
std::optional<RawDuration> readDuration(std::string_view cell);
/// In seconds. The unit of the head counts where the cell has none.
double secondsOf(const RawDuration& duration, CsvUnit headUnit, DurationForm form);

/// A date in its parts. Where nothing tells the day from the month, first and second are they.
struct RawDate {
  int year = 0;
  int first = 0;
  int second = 0;
  bool orderKnown = false;  // then first is the month and second the day
  std::optional<int> minuteOfDay = {};
};
/// ISO, three numbers, or a day, the name of a month and a year; a clock time may follow.
std::optional<RawDate> readDate(std::string_view cell);
std::optional<Moment> momentOf(const RawDate& date, DateOrder order);

}  // namespace nautrel::exchange
