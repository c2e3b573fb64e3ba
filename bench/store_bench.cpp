// SPDX-License-Identifier: GPL-2.0-or-later
#include <sqlite3.h>

#include <string>
#include <vector>

#include "bench_support.h"
#include "store/contract.h"
#include "store/database.h"
#include "store/numbering.h"

// Each operation against the same work by calls of the engine itself, with the same options,
// columns, openings and syncs; the ratio is to stay under 1.3.

namespace nautrel::bench {
namespace {

constexpr int kColumns = 30;

/// One for all: the few rows that come and go do not change its size.
const std::string& logbookPath() {
  static const Logbook logbook;
  return logbook.path();
}

void open(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state) {
    auto dives = workspace.OpenDatabase(logbookPath()).OpenRecordset(Tabelle::Logbuch);
    benchmark::DoNotOptimize(dives.RecordCount());
  }
}

void openBare(benchmark::State& state) {
  for (auto _ : state) {
    Bare file(logbookPath());
    sqlite3_stmt* count = file.prepare("SELECT count(*) FROM Logbuch");
    sqlite3_step(count);
    benchmark::DoNotOptimize(sqlite3_column_int(count, 0));
    sqlite3_finalize(count);
  }
}

void pass(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state) {
    auto dives = workspace.OpenDatabase(logbookPath()).OpenRecordset(Tabelle::Logbuch);
    for (; !dives.Eof(); dives.MoveNext())
      for (int column = 0; column < kColumns; ++column)
        benchmark::DoNotOptimize(dives.Fields(column));
  }
}

void passBare(benchmark::State& state) {
  for (auto _ : state) readAllBare(logbookPath());
}

std::string appendedText(std::string_view column) {
  return column == "Lang" ? comment(8) : "Shark Reef";
}

void append(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state) {
    auto database = workspace.OpenDatabase(logbookPath());
    auto dives = database.OpenRecordset(Tabelle::Logbuch);
    dives.AddNew();
    for (const auto& column : logbookTables().front().columns) {
      const bool flag = column.kind == Kind::Flag;
      dives.setField(column.name, flag ? Value(true) : Value(appendedText(column.name)));
    }
    dives.Update();
    dives.Close();
    workspace.settle();
  }
}

void appendBare(benchmark::State& state) {
  std::string sql = "INSERT INTO Logbuch VALUES (?";
  for (int column = 1; column < kColumns; ++column) sql += ", ?";
  sql += ")";
  for (auto _ : state) {
    Bare file(logbookPath());
    sqlite3_stmt* insert = file.prepare(sql.c_str());
    int place = 0;
    for (const auto& column : logbookTables().front().columns) {
      ++place;
      if (column.kind == Kind::Flag)
        sqlite3_bind_int(insert, place, 1);
      else
        sqlite3_bind_text(insert, place, appendedText(column.name).c_str(), -1, SQLITE_TRANSIENT);
    }
    sqlite3_step(insert);
    sqlite3_finalize(insert);
    file.settle();
  }
}

/// Numbers that stay as they are would cost no write.
int otherStart() {
  static int start = 1;
  return start = 3 - start;
}

void renumberAll(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state) {
    renumber(workspace, logbookPath(), otherStart());
    workspace.settle();
  }
}

void renumberAllBare(benchmark::State& state) {
  for (auto _ : state) {
    Bare file(logbookPath());
    file.renumber(otherStart());
    file.settle();
  }
}

/// As the window does it: on its own set of rows, which is read again afterwards.
void deleteOne(benchmark::State& state) {
  Workspace workspace;
  const auto dynaset = [&] {
    return workspace.OpenDatabase(logbookPath()).OpenDynaset(Tabelle::Logbuch);
  };
  for (auto _ : state) {
    auto dives = dynaset();
    dives.Delete();
    dives = dynaset();
    dives.MoveLast();
    renumber(workspace, logbookPath(), 1);
    workspace.settle();
  }
}

void deleteOneBare(benchmark::State& state) {
  for (auto _ : state) {
    Bare file(logbookPath());
    file.run("DELETE FROM Logbuch WHERE rowid = (SELECT min(rowid) FROM Logbuch)");
    file.renumber(1);
    file.settle();
  }
}

void openDynaset(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state)
    workspace.OpenDatabase(logbookPath()).OpenDynaset(Tabelle::Logbuch).MoveLast();
}
BENCHMARK(openDynaset)->Name("open a dynaset")->Unit(benchmark::kMillisecond)->UseRealTime();

void stepDynaset(benchmark::State& state) {
  Workspace workspace;
  auto dives = workspace.OpenDatabase(logbookPath()).OpenDynaset(Tabelle::Logbuch);
  for (auto _ : state) {
    dives.MoveNext();
    if (dives.Eof()) dives.MoveFirst();
  }
}
BENCHMARK(stepDynaset)->Name("step on a dynaset")->Unit(benchmark::kMicrosecond)->UseRealTime();

void settleNothing(benchmark::State& state) {
  Workspace workspace;
  for (auto _ : state) workspace.settle();
}
BENCHMARK(settleNothing)->Name("settle, nothing written")->UseRealTime();

const bool kRegistered = [] {
  compare("open, count, close", 100, open, openBare);
  compare("pass over all columns", 1, pass, passBare);
  compare("append one dive, settled", 10, append, appendBare);
  compare("renumber all, settled", 1, renumberAll, renumberAllBare);
  compare("delete one, renumber, settled", 1, deleteOne, deleteOneBare);
  return true;
}();

}  // namespace
}  // namespace nautrel::bench
