#include "printing/dive_list.h"

#include <optional>
#include <utility>

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
void writeDive(TextFile& file, const Recordset& dive, const Locale& locale) {
  const auto alone = [&](int ordinal) {
    auto value = dive.Fields(ordinal);
    return value.isNull() ? std::string("Null") : std::move(value).joined(locale);
  };
  const auto joined = [&](int ordinal) { return dive.Fields(ordinal).joined(locale); };
  const auto date = joined(Feld::Tag) + "." + joined(Feld::Monat) + "." + joined(Feld::Jahr);
  file.line(alone(Feld::Nr), kLand, alone(Feld::Land), kOrt, alone(Feld::Ort), kPlatz,
            alone(Feld::Platz), kDatum, date, kZeit, joined(Feld::Zeit) + " min", kTiefe,
            joined(Feld::Tiefe) + " m", kBuddy, alone(Feld::Buddy));
}

void writeDives(TextFile& file, const DiveList& list, Recordset dives, const Locale& locale) {
  const Value first(list.firstNumber);
  while (!dives.Eof() && dives.Fields(Feld::Nr) != first) dives.MoveNext();
  for (int row = 0; row < list.count && !dives.Eof(); ++row, dives.MoveNext())
    writeDive(file, dives, locale);
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
               workspace.OpenDatabase(list.databasePath).OpenRecordset(Tabelle::Logbuch, kColumns),
               locale);
  });
}

}  // namespace nautrel
