// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/check.h"

#include <array>
#include <filesystem>
#include <optional>
#include <utility>

#include "exchange/dates.h"
#include "exchange/dive_rows.h"
#include "exchange/plain_text.h"
#include "exchange/standard_dive.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "store/contract.h"
#include "store/database_file.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;
using About = Finding::About;

constexpr std::array<std::string_view, 7> kNames{"file",  "table", "number", "date",
                                                 "value", "flags", "picture"};

std::string inQuotes(std::string_view text) {
  return "'" + shown(text) + "'";
}

/// Holds the dives against what the windows expect of them, one after the other.
class DiveCheck {
 public:
  DiveCheck(const std::string& logbook, const Locale& locale, std::vector<Finding>& findings)
      : folder_(nativePath(logbook).parent_path()), locale_(locale), findings_(findings) {}

  void check(const DiveRecord& dive) {
    ++row_;
    checkNumber(dive);
    checkDate(dive);
    checkValues(dive);
    checkFlags(dive);
    checkPicture(dive);
  }

 private:
  void find(About about, const std::string& text) {
    const auto dive =
        number_ ? "Dive " + generalText(*number_, {}) + ": " : "Row " + std::to_string(row_) + ": ";
    findings_.push_back({about, row_, dive + text});
  }

  void checkNumber(const DiveRecord& dive) {
    const auto before = std::exchange(number_, tryNumber(dive.text(Feld::Nr), locale_));
    if (!number_)
      find(About::Number, inQuotes(dive.text(Feld::Nr)) + " is no dive number.");
    else if (before && *number_ != *before + 1)
      find(About::Number, "it follows dive " + generalText(*before, {}) + ".");
  }

  void checkDate(const DiveRecord& dive) {
    if (hasRealDate(dive)) return;
    std::string date;
    for (const int part : {Feld::Tag, Feld::Monat, Feld::Jahr})
      date += (date.empty() ? "" : ".") + std::string(dive.text(part));
    find(About::Date, inQuotes(date) + " is no date.");
  }

  void checkValues(const DiveRecord& dive) {
    for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal) {
      const auto& column = diveColumn(ordinal);
      if (!column.isNumber) continue;
      const auto text = dive.text(ordinal);
      const bool required = ordinal == Feld::Zeit || ordinal == Feld::Tiefe;
      if (text.empty() && required)
        find(About::Value, std::string(column.label) + " is missing.");
      else if (const auto fault = faultOfNumber(text, locale_); !text.empty() && !fault.empty())
        find(About::Value,
             std::string(column.label) + " " + inQuotes(text) + " " + std::string(fault) + ".");
    }
  }

  void checkFlags(const DiveRecord& dive) {
    static const std::vector<std::vector<int>> groups = {
        {Feld::Salz, Feld::Süß},
        {Feld::Ufer, Feld::Boot},
        {Feld::Alu, Feld::Stahl},
        {Feld::Sichtg, Feld::Sichtm, Feld::Sichts}};
    for (const auto& group : groups) {
      std::string set;
      int count = 0;
      for (const int ordinal : group)
        if (dive.flags[ordinal])
          set += (count++ > 0 ? " and " : "") + std::string(diveColumn(ordinal).label);
      if (count > 1) find(About::Flags, set + " are both set.");
    }
  }

  /// A path into the network is not followed: a logbook from elsewhere could lead anywhere.
  void checkPicture(const DiveRecord& dive) {
    const std::string path(dive.text(Feld::Grafik));
    if (path.empty() || path.starts_with("\\\\") || path.starts_with("//")) return;
    std::error_code failed;
    if (!fs::is_regular_file(folder_ / nativePath(path), failed))
      find(About::Picture, "the picture " + inQuotes(path) + " is gone.");
  }

  fs::path folder_;
  const Locale& locale_;
  std::vector<Finding>& findings_;
  int row_ = 0;
  std::optional<double> number_;  // of the present dive
};

void checkTable(Database& database, const Table& table, std::vector<Finding>& findings) {
  try {
    if (database.OpenRecordset(table.name).RecordCount() < table.deliveredRows)
      findings.push_back({About::Table, 0, "The table " + std::string(table.name) + " is empty."});
  } catch (const RunTimeError& failure) {
    findings.push_back({About::Table, 0, "Table " + std::string(table.name) + ": " + failure.text});
  }
}

}  // namespace

std::string_view nameOf(About about) {
  return kNames[static_cast<std::size_t>(about)];
}

std::vector<Finding> checkFile(const std::string& path) {
  std::vector<Finding> findings;
  try {
    for (const auto& line : damageOf(path))
      findings.push_back({About::File, 0, "The file is damaged: " + line});
    if (!findings.empty()) return findings;
    Workspace workspace(Workspace::Use::Look);
    auto database = workspace.OpenDatabase(path);
    for (const auto& table : logbookTables()) checkTable(database, table, findings);
  } catch (const RunTimeError& failure) {
    findings.push_back({About::File, 0, failure.text});
  }
  return findings;
}

std::vector<Finding> checkLogbook(const std::string& path, const Locale& locale) {
  auto findings = checkFile(path);
  if (!findings.empty()) return findings;
  try {
    Workspace workspace(Workspace::Use::Look);
    DiveCheck dives(path, locale, findings);
    for (auto rows = workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch); !rows.Eof();
         rows.MoveNext())
      dives.check(readDive(rows));
  } catch (const RunTimeError& failure) {
    findings.push_back({About::File, 0, failure.text});
  }
  return findings;
}

}  // namespace nautrel::exchange
