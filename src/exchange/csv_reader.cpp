// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/csv_reader.h"

#include <algorithm>

#include "exchange/csv_table.h"
#include "exchange/csv_writer.h"
#include "exchange/foreign_csv.h"
#include "exchange/plain_text.h"
#include "exchange/private_block.h"

namespace nautrel::exchange {
namespace {

/// A file of ours: a column for each of the logbook's, texts as they stand.
class OwnCsv final : public ImportSource {
 public:
  explicit OwnCsv(std::unique_ptr<CsvTable> table) : table_(std::move(table)) {}

  static bool isIt(const CsvTable& table) {
    const auto& heads = table.header().cells;
    const auto& own = ownCsvHeader();
    return heads.size() == own.size() + 1 && heads[0].text == kCsvDateColumn &&
           std::equal(
               own.begin(), own.end(), heads.begin() + 1,
               [](const std::string& one, const CsvCell& other) { return one == other.text; });
  }

  std::size_t diveCount() const override { return table_->rowCount(); }

  std::vector<SourceDive> dives(const Answers&, const Locale& locale) const override {
    std::vector<SourceDive> dives;
    dives.reserve(table_->rowCount());
    for (const auto& row : *table_) {
      auto& dive = dives.emplace_back(SourceDive{.line = row.line, .ours = true});
      takeCells(row, dive.record);
      changeDecimalSign(dive.record, signIn(locale), locale.decimal);
    }
    return dives;
  }

 private:
  /// The separator tells whether numbers have a point; where they have not, they have a comma or
  /// what the diver's own system has instead.
  std::string signIn(const Locale& locale) const {
    if (table_->separator() == csvSeparatorFor(".")) return ".";
    return locale.decimal == "." ? "," : locale.decimal;
  }

  static void takeCells(const CsvRow& row, DiveRecord& record) {
    for (int column = 0; column < kDiveColumns; ++column) {
      const auto& cell = row.cells[static_cast<std::size_t>(column) + 1];
      if (diveColumn(column).isFlag)
        record.flags[column] = flagOf(row, column, cell.text);
      else if (cell.quoted || !cell.text.empty())
        record.texts[column] = unguarded(cell.text);
    }
  }

  static bool flagOf(const CsvRow& row, int column, std::string_view text) {
    if (text != "0" && text != "1")
      throw Refused{"'" + std::string(diveColumn(column).label) + "' in line " +
                    std::to_string(row.line) + " is '" + shown(text) + "', neither 0 nor 1."};
    return text == "1";
  }

  std::unique_ptr<CsvTable> table_;
};

}  // namespace

std::unique_ptr<ImportSource> readCsv(InputFile& file) {
  auto table = std::make_unique<CsvTable>(file.readAll(), file.name());
  if (OwnCsv::isIt(*table)) return std::make_unique<OwnCsv>(std::move(table));
  return readForeignCsv(std::move(table), file.name());
}

}  // namespace nautrel::exchange
