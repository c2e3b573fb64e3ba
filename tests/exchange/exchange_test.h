#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/dive_record.h"
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
    auto dives = workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch);
    appendDive(dives, dive);
  }
  std::vector<DiveRecord> dives() {
    std::vector<DiveRecord> all;
    auto dives = workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch);
    for (; !dives.Eof(); dives.MoveNext()) all.push_back(readDive(dives));
    return all;
  }

  /// Exports to a file of the folder and gives its content.
  std::string exported(const std::string& name, const ExportOptions& options,
                       const Locale& locale = {}) {
    exportLogbook(workspace, path, folder.file(name), options, locale);
    return readFile(folder.file(name));
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
