// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exchange/dive_record.h"
#include "exchange/format.h"
#include "platform/text.h"

namespace nautrel::exchange {

enum class DateOrder { DayFirst, MonthFirst };
enum class DurationForm { MinutesSeconds, HoursMinutes };
enum class UnitSystem { Metric, Imperial };

/// What a file leaves open, with an example from it.
struct Question {
  enum class About { Dates, Durations, Units };
  About about = About::Dates;
  std::string column;   // as the file names it
  std::string example;  // a cell of it
};

/// What the user says to the questions. One that was not asked changes nothing.
struct Answers {
  std::optional<DateOrder> dates;
  std::optional<DurationForm> durations;
  std::optional<UnitSystem> units;
};

/// A value that the logbook takes otherwise than the file has it.
struct Change {
  std::string column;  // as a person calls it: "Max depth"
  std::string from;
  std::string to;
  std::string why;
};

/// A dive of a file, its values already those of the logbook's columns.
struct SourceDive {
  int line = 0;         // of the file, from 1
  std::string id = {};  // empty where the file gives none
  DiveRecord record = {};
  /// Written by this program: its texts are taken verbatim.
  bool ours = false;
  std::optional<int> minuteOfDay = {};  // for the order of a day
  std::optional<int> number = {};       // the file's own, likewise
  std::string leftOutBecause = {};      // not empty: something that a dive must have is missing
  std::vector<Change> changes = {};
};

/// A file that has been read.
class ImportSource {
 public:
  virtual ~ImportSource() = default;

  virtual std::size_t diveCount() const = 0;
  /// What must be answered before dives() can be called.
  virtual std::vector<Question> questions() const { return {}; }
  /// What of the file has no place in the logbook, such as columns that nobody knows.
  virtual std::vector<std::string> notes() const { return {}; }
  /// In the order of the file; texts of numbers with the locale's decimal sign. Raises Refused if a
  /// question stays open.
  virtual std::vector<SourceDive> dives(const Answers& answers, const Locale& locale) const = 0;
  /// Empty where the file has none.
  virtual TextRow card() const { return {}; }
  virtual std::vector<TextRow> equipment() const { return {}; }
};

/// Reads a file; without a format its ending tells it. Raises Refused.
std::unique_ptr<ImportSource> openSource(const std::string& path, std::optional<Format> format = {},
                                         const Progress& progress = {});

}  // namespace nautrel::exchange
