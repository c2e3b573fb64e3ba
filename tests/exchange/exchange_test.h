// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/dive_rows.h"
#include "exchange/export.h"
#include "exchange/import_plan.h"
#include "store/delivered.h"
#include "support/logbook.h"

namespace nautrel::exchange {

/// A delivered logbook in a folder of its own, with calls to fill and to read it.
class Book {
 public:
  Book() { createDeliveredLogbook(path); }

  void add(const DiveRecord& dive) {
    auto dives = table(Tabelle::Logbuch);
    appendDive(dives, dive);
  }
  void setCard(const TextRow& card) {
    auto rows = table(Tabelle::Benutzer);
    rows.Edit();
    writeRow(rows, card);
  }
  void addPiece(const TextRow& piece) {
    auto rows = table(Tabelle::Ausrüstung);
    rows.AddNew();
    writeRow(rows, piece);
  }
  TextRow card() { return readRow(table(Tabelle::Benutzer)); }
  std::vector<TextRow> equipment() {
    std::vector<TextRow> all;
    for (auto rows = table(Tabelle::Ausrüstung); !rows.Eof(); rows.MoveNext())
      all.push_back(readRow(rows));
    return all;
  }
  std::vector<DiveRecord> dives() {
    std::vector<DiveRecord> all;
    auto dives = table(Tabelle::Logbuch);
    for (; !dives.Eof(); dives.MoveNext()) all.push_back(readDive(dives));
    return all;
  }

  /// Exports to a file of the folder and gives its content.
  std::string exported(const std::string& name, const ExportOptions& options,
                       const Locale& locale = {}) {
    exportLogbook(workspace, path, folder.file(name), options, locale);
    return readFile(folder.file(name));
  }

  /// What an import of the file would do.
  ImportPlan plan(const std::string& file, const Answers& answers = {}, const Locale& locale = {},
                  const ImportOptions& options = {.card = true, .equipment = true}) {
    return ImportPlan::make(*openSource(file), answers, workspace, path, locale, options);
  }
  ImportPlan planOf(const std::string& name, const std::string& content,
                    const Answers& answers = {}) {
    return plan(folder.write(name, content), answers);
  }
  void import(const ImportPlan& plan) { EXPECT_TRUE(plan.execute(workspace, path)); }

  Recordset table(std::string_view name) {
    return workspace.OpenDatabase(path).OpenRecordset(name);
  }

  TemporaryFolder folder;
  std::string path = folder.file(std::string(kLogbookFile));
  Workspace workspace;
};

/// A dive with the columns that a dive must have, and no others.
inline DiveRecord plainDive(const std::string& number, const std::string& depth = "60.5") {
  DiveRecord dive;
  dive.texts[Feld::Nr] = number;
  dive.texts[Feld::Tag] = "05";
  dive.texts[Feld::Monat] = "03";
  dive.texts[Feld::Jahr] = "2001";
  dive.texts[Feld::Zeit] = "45";
  dive.texts[Feld::Tiefe] = depth;
  return dive;
}

/// Date and every column that holds something, flags by their names.
inline std::string told(const PlannedDive& dive) {
  if (dive.fate == Fate::LeftOut) return "left out: " + dive.why;
  const auto& record = dive.source.record;
  std::string text;
  for (const int column : {Feld::Jahr, Feld::Monat, Feld::Tag}) text += record.text(column);
  for (int column = Feld::Land; column < kDiveColumns; ++column) {
    if (column >= Feld::Tag && column <= Feld::Jahr) continue;
    const auto& name = diveColumn(column).name;
    if (record.flags[column]) text.append(" +").append(name);
    if (!record.text(column).empty())
      text.append(" ").append(name).append("=").append(record.text(column));
  }
  return text;
}

/// The sentence with which a call is refused; empty if it is not.
template <class Call>
std::string refusal(Call&& call) {
  try {
    call();
  } catch (const Refused& refused) {
    return refused.text;
  }
  return {};
}

}  // namespace nautrel::exchange
