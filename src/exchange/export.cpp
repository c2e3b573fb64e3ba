// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/export.h"

#include <algorithm>

#include "exchange/csv_writer.h"
#include "exchange/dates.h"
#include "exchange/dive_rows.h"
#include "exchange/output_file.h"
#include "exchange/uddf_writer.h"
#include "store/program_files.h"

namespace nautrel::exchange {
namespace {

bool inRange(const DiveRecord& dive, const ExportOptions& options) {
  if (!options.from && !options.to) return true;
  const auto number = readWhole(dive.text(Feld::Nr));
  return number && *number >= options.from.value_or(*number) &&
         *number <= options.to.value_or(*number);
}

std::vector<DiveRecord> readDives(Database& database, const ExportOptions& options) {
  std::vector<DiveRecord> all;
  for (auto dives = database.OpenRecordset(Tabelle::Logbuch); !dives.Eof(); dives.MoveNext())
    if (auto dive = readDive(dives); inRange(dive, options)) all.push_back(std::move(dive));
  return all;
}

std::vector<TextRow> readTable(Database& database, std::string_view table) {
  std::vector<TextRow> all;
  for (auto rows = database.OpenRecordset(table); !rows.Eof(); rows.MoveNext())
    all.push_back(readRow(rows));
  return all;
}

Logbook readLogbook(Workspace& workspace, const std::string& path, const ExportOptions& options) {
  auto database = workspace.OpenDatabase(path);
  Logbook logbook;
  logbook.dives = readDives(database, options);
  if (options.card)
    if (auto cards = readTable(database, Tabelle::Benutzer); !cards.empty())
      logbook.card = std::move(cards.front());
  if (options.equipment) logbook.equipment = readTable(database, Tabelle::Ausrüstung);
  return logbook;
}

void tell(const Progress& progress, std::size_t done, std::size_t all) {
  if (progress && !progress(done, all)) throw Refused{"The export was cancelled."};
}

void writeCsv(OutputFile& file, const Logbook& logbook, const Locale& locale,
              const Progress& progress) {
  const char separator = csvSeparatorFor(locale.decimal);
  std::string text = "\xEF\xBB\xBF";
  appendCsvHeader(text, separator);
  std::size_t done = 0;
  for (const auto& dive : logbook.dives) {
    tell(progress, done++, logbook.dives.size());
    appendCsvDive(text, separator, dive);
    file.write(text);
    text.clear();
  }
  file.write(text);
}

void writeUddf(OutputFile& file, const Logbook& logbook, const Locale& locale,
               const Progress& progress, ExportReport& report) {
  UddfWriter writer(logbook, locale);
  file.write(writer.head());
  std::size_t done = 0;
  for (const auto& dive : logbook.dives) {
    tell(progress, done++, logbook.dives.size());
    file.write(writer.dive(dive));
  }
  file.write(writer.tail());
  report.notes = writer.notes();
}

}  // namespace

std::vector<std::string> cannotCarry(const ExportOptions& options) {
  if (options.format == Format::Csv)
    return {"CSV holds dives alone: neither the diver's card nor the equipment goes out.",
            "Pictures are named by their path; the files themselves do not go with it."};
  return {
      "Other programs find no place in UDDF for the weather, the visibility, a deco stop and a "
      "picture's file; back in Nautrel all of it but the files returns.",
      "UDDF wants a time for every dive, which the logbook does not have: the first dive of a "
      "day stands at 00:00, each further one an hour after the end of the one before."};
}

ExportReport exportLogbook(Workspace& workspace, const std::string& logbook,
                           const std::string& target, const ExportOptions& options,
                           const Locale& locale, const Progress& progress) {
  OutputFile file(target, programFiles(logbook), options.overwrite);
  const auto content = readLogbook(workspace, logbook, options);
  if (content.dives.empty() && (options.from || options.to))
    throw Refused{"The logbook holds no dive with such a number."};
  ExportReport report{.dives = static_cast<int>(content.dives.size())};
  if (options.format == Format::Csv) {
    writeCsv(file, content, locale, progress);
  } else {
    report.card = !isBlank(content.card);
    report.equipment = static_cast<int>(content.equipment.size());
    writeUddf(file, content, locale, progress, report);
  }
  file.commit();
  return report;
}

}  // namespace nautrel::exchange
