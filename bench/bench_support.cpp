// SPDX-License-Identifier: GPL-2.0-or-later
#include "bench_support.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

#include "store/contract.h"
#include "store/delivered.h"
#include "table_reporter.h"

namespace nautrel::bench {
namespace {

namespace fs = std::filesystem;

void require(bool done, const char* what) {
  if (done) return;
  std::fprintf(stderr, "bench: %s failed\n", what);
  std::exit(1);
}

std::string diveText(const Column& column, int number) {
  static const char* const kPlaces[] = {"Shark Reef", "Blue Hole", "Giannis D", "Türkisbucht"};
  if (column.name == "Nr") return std::to_string(number);
  if (column.name == "Lang") return comment(number);
  if (column.name == "Tag") return std::to_string(number % 28 + 1);
  if (column.name == "Monat") return std::to_string(number % 12 + 1);
  if (column.name == "Jahr") return std::to_string(1985 + number / 300);
  if (column.name == "Zeit") return std::to_string(25 + number % 50);
  if (column.name == "Tiefe") return std::to_string(20 + number % 100);
  if (column.name == "Grafik") return number % 10 == 0 ? "/home/diver/pictures/dive.jpg" : "";
  return kPlaces[(static_cast<std::size_t>(number) + column.name.size()) % 4];
}

void fill(const std::string& path, int dives) {
  const Table& logbook = logbookTables().front();
  std::string places;
  for (std::size_t column = 0; column < logbook.columns.size(); ++column)
    places += column == 0 ? "?" : ", ?";
  Bare file(path);
  file.run("BEGIN");
  sqlite3_stmt* insert = file.prepare(("INSERT INTO Logbuch VALUES (" + places + ")").c_str());
  for (int number = 1; number <= dives; ++number) {
    int place = 0;
    for (const auto& column : logbook.columns) {
      ++place;
      const std::string text = diveText(column, number);
      if (column.kind == Kind::Flag)
        sqlite3_bind_int(insert, place, (number + place) % 3 == 0);
      else
        sqlite3_bind_text(insert, place, text.c_str(), -1, SQLITE_TRANSIENT);
    }
    require(sqlite3_step(insert) == SQLITE_DONE, "filling");
    sqlite3_reset(insert);
  }
  sqlite3_finalize(insert);
  file.run("COMMIT");
}

}  // namespace

Logbook::Logbook(int dives)
    : folder_(fs::temp_directory_path() /
              ("nautrel-bench-" + std::to_string(std::random_device{}()))),
      path_((folder_ / kLogbookFile).string()) {
  fs::create_directories(folder_);
  createDeliveredLogbook(path_);
  fill(path_, dives);
}

Logbook::~Logbook() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string comment(int number) {
  static constexpr std::string_view kSentence =
      "Water 24 degrees, a turtle under the drop-off, Nitrox 32; the current grew at the end. ";
  std::string text;
  for (int sentence = 0; sentence <= number % 17; ++sentence) text += kSentence;
  return text;
}

Bare::Bare(const std::string& path) {
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  require(sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr) == SQLITE_OK, "opening");
  sqlite3_busy_timeout(handle_, 5000);
  run("PRAGMA synchronous = NORMAL");
}

Bare::~Bare() {
  sqlite3_close(handle_);
}

void Bare::run(const char* sql) {
  require(sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
}

sqlite3_stmt* Bare::prepare(const char* sql) {
  sqlite3_stmt* statement = nullptr;
  require(sqlite3_prepare_v2(handle_, sql, -1, &statement, nullptr) == SQLITE_OK, sql);
  return statement;
}

// The rows first, then one change after the other: a walk that is open meanwhile would keep the log
// from being emptied.
void Bare::renumber(int number) {
  std::vector<sqlite3_int64> rows;
  sqlite3_stmt* walk = prepare("SELECT rowid FROM Logbuch ORDER BY rowid");
  while (sqlite3_step(walk) == SQLITE_ROW) rows.push_back(sqlite3_column_int64(walk, 0));
  sqlite3_finalize(walk);

  sqlite3_stmt* update = prepare("UPDATE Logbuch SET Nr = ? WHERE rowid = ?");
  for (const auto row : rows) {
    sqlite3_bind_text(update, 1, std::to_string(number++).c_str(), -1, SQLITE_TRANSIENT);
    sqlite3_bind_int64(update, 2, row);
    sqlite3_step(update);
    sqlite3_reset(update);
  }
  sqlite3_finalize(update);
}

void Bare::settle() {
  const int code =
      sqlite3_wal_checkpoint_v2(handle_, "main", SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  require(code == SQLITE_OK, "the checkpoint");
}

void readAllBare(const std::string& path) {
  const auto& columns = logbookTables().front().columns;
  Bare file(path);
  sqlite3_stmt* walk = file.prepare("SELECT rowid, * FROM Logbuch ORDER BY rowid");
  while (sqlite3_step(walk) == SQLITE_ROW) {
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
      if (columns[static_cast<std::size_t>(column)].kind == Kind::Flag) {
        benchmark::DoNotOptimize(sqlite3_column_int(walk, column + 1));
        continue;
      }
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(walk, column + 1));
      const auto size = static_cast<std::size_t>(sqlite3_column_bytes(walk, column + 1));
      benchmark::DoNotOptimize(std::string(text, size));
    }
  }
  sqlite3_finalize(walk);
}

void compare(const std::string& name, int times, void (*ours)(benchmark::State&),
             void (*bare)(benchmark::State&)) {
  for (const auto& [side, run] : {std::pair{kOurs, ours}, std::pair{kBare, bare}})
    benchmark::RegisterBenchmark((name + side).c_str(), run)
        ->Iterations(times)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

}  // namespace nautrel::bench
