// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/dive_list.h"

#include <optional>
#include <string_view>

#include "platform/errors.h"
#include "platform/text_file.h"
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr Tab kLand{8};
constexpr Tab kOrt{30};
constexpr Tab kPlatz{52};
constexpr Tab kDatum{74};
constexpr Tab kZeit{86};
constexpr Tab kTiefe{94};
constexpr Tab kBuddy{102};
constexpr int kRuleLength = 124;

const Columns kColumns = {"Nr",    "Land", "Ort",  "Platz", "Tag",
                          "Monat", "Jahr", "Zeit", "Tiefe", "Buddy"};

void writeHead(TextFile& file, const DateTime& printed, const Locale& locale) {
  file.line("Nautrel 2.0 List - printed: ", generalDate(printed, locale));
  file.line();
  file.line("#", kLand, "Country", kOrt, "City / Island", kPlatz, "Diveplace", kDatum, "Date",
            kZeit, "Time", kTiefe, "Depth", kBuddy, "Buddy");
  file.line(std::string(kRuleLength, '='));
}

// The metres behind a depth in feet belong to the form of the list, which other programs read.
void writeDive(TextFile& file, const Recordset& dive) {
  using namespace Feld;
  const auto joined = [&](Ordinal column) { return dive.fieldText(column); };
  const auto alone = [&](Ordinal column) {
    const auto text = joined(column);
    return text.data() == nullptr ? "Null" : text;
  };
  file.line(alone(Nr), kLand, alone(Land), kOrt, alone(Ort), kPlatz, alone(Platz), kDatum,
            joined(Tag), ".", joined(Monat), ".", joined(Jahr), kZeit, joined(Zeit), " min", kTiefe,
            joined(Tiefe), " m", kBuddy, alone(Buddy));
}

void writeDives(TextFile& file, const DiveList& list, Recordset dives) {
  const Value first(list.firstNumber);
  while (!dives.Eof() && dives.Fields(Feld::Nr) != first) dives.MoveNext();
  for (int row = 0; row < list.count && !dives.Eof(); ++row, dives.MoveNext())
    writeDive(file, dives);
}

}  // namespace

void writeDiveList(const std::string& path, const DiveList& list, Workspace& workspace,
                   const Locale& locale) {
  std::optional<TextFile> file;
  resumeNext([&] { file.emplace(path); });
  if (!file) return;
  writeHead(*file, list.printed, locale);
  resumeNext([&] {
    writeDives(*file, list,
               workspace.OpenDatabase(list.databasePath).OpenRecordset(Tabelle::Logbuch, kColumns));
  });
}

}  // namespace nautrel
