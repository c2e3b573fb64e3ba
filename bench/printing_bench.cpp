// SPDX-License-Identifier: GPL-2.0-or-later
#include <fstream>

#include "bench_support.h"
#include "printing/dive_list.h"

// The list file is to take at most 1.3 times a bare pass over its columns that takes each text with
// its length, as whoever writes it must, and writes the same bytes. The second line holds it
// against a pass that does not even ask for the lengths.

namespace nautrel::bench {
namespace {

const Logbook& logbook() {
  static const Logbook made;
  return made;
}

std::string listPath() {
  return (logbook().folder() / "List1.txt").string();
}

void listFile(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state)
    writeDiveList(listPath(), {logbook().path(), "1", kFullLogbook, {}}, workspace, {});
}

std::string listBytes() {
  Workspace workspace;
  writeDiveList(listPath(), {logbook().path(), "1", kFullLogbook, {}}, workspace, {});
  std::ifstream file(listPath(), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

template <bool lengths>
void listFileBare(benchmark::State& state) {
  const auto bytes = listBytes();
  for (auto _ : state) {
    Bare file(logbook().path());
    auto* dives = file.prepare(
        "SELECT Nr, Land, Ort, Platz, Tag, Monat, Jahr, Zeit, Tiefe, Buddy FROM Logbuch "
        "ORDER BY rowid");
    while (sqlite3_step(dives) == SQLITE_ROW)
      for (int column = 0; column < sqlite3_column_count(dives); ++column) {
        benchmark::DoNotOptimize(sqlite3_column_text(dives, column));
        if (lengths) benchmark::DoNotOptimize(sqlite3_column_bytes(dives, column));
      }
    sqlite3_finalize(dives);
    std::ofstream(listPath(), std::ios::binary | std::ios::trunc) << bytes;
  }
}

const bool kRegistered = [] {
  compare("list file", 1, listFile, listFileBare<true>);
  compare("list file, texts without lengths", 1, listFile, listFileBare<false>);
  return true;
}();

}  // namespace
}  // namespace nautrel::bench
