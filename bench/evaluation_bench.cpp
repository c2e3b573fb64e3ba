// SPDX-License-Identifier: GPL-2.0-or-later
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "evaluation/figures.h"
#include "store/contract.h"
#include "store/delivered.h"

// The statistic and each graph are to take at most 1.5 times a bare pass over the columns that
// they need.

namespace nautrel {
namespace {

const Locale kPoint;

void addDives(Recordset dives, bool fractions) {
  for (int number = 1; number <= 9999; ++number) {
    dives.AddNew();
    dives.setField(Feld::Nr, number);
    dives.setField(Feld::Jahr, std::to_string(2010 + number / 625));
    dives.setField(Feld::Monat, "0" + std::to_string(number % 9 + 1));
    dives.setField(Feld::Zeit, std::to_string(20 + number % 60));
    dives.setField(Feld::Tiefe, std::to_string(number % 160) + (fractions ? ".7" : ""));
    dives.setField(number % 2 == 0 ? Feld::Salz : Feld::Süß, true);
    dives.Update();
  }
}

/// A logbook of 9,999 dives, removed at the end.
class Logbook {
 public:
  explicit Logbook(bool fractions = false)
      : path_(std::filesystem::temp_directory_path() /
              (fractions ? "nautrel-bench-fractions.mdb" : "nautrel-bench-whole.mdb")) {
    std::filesystem::remove(path_);
    createDeliveredLogbook(path_.string());
    addDives(open({}), fractions);
    workspace_.settle();
  }
  ~Logbook() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  Logbook(const Logbook&) = delete;
  Logbook& operator=(const Logbook&) = delete;

  Recordset open(const Columns& columns) {
    return workspace_.OpenDatabase(path_.string()).OpenRecordset(Tabelle::Logbuch, columns);
  }

 private:
  std::filesystem::path path_;
  Workspace workspace_;
};

void barePass(benchmark::State& state, const Columns& columns,
              const std::vector<Feld::Ordinal>& ordinals) {
  Logbook logbook;
  for (auto _ : state) {
    auto dives = logbook.open(columns);
    for (; !dives.Eof(); dives.MoveNext())
      for (const auto ordinal : ordinals) benchmark::DoNotOptimize(dives.Fields(ordinal));
  }
}
BENCHMARK_CAPTURE(barePass, statistic, statisticColumns(),
                  {Feld::Nr, Feld::Zeit, Feld::Tiefe, Feld::Salz, Feld::Süß, Feld::Ufer, Feld::Boot,
                   Feld::Deco, Feld::Rep})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(barePass, years, yearColumns(), {Feld::Jahr})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(barePass, months, monthColumns(), {Feld::Monat})->Unit(benchmark::kMillisecond);

void statistic(benchmark::State& state, bool fractions) {
  Logbook logbook(fractions);
  for (auto _ : state) {
    auto dives = logbook.open(statisticColumns());
    benchmark::DoNotOptimize(countStatistic(dives, kPoint, [](int) {}));
  }
}
BENCHMARK_CAPTURE(statistic, whole, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(statistic, fractions, true)->Unit(benchmark::kMillisecond);

void graphYears(benchmark::State& state) {
  Logbook logbook;
  for (auto _ : state) {
    auto dives = logbook.open(yearColumns());
    benchmark::DoNotOptimize(countYears(dives, 2025, kPoint, [](int) {}));
  }
}
BENCHMARK(graphYears)->Unit(benchmark::kMillisecond);

void graphMonth(benchmark::State& state) {
  Logbook logbook;
  for (auto _ : state) {
    auto dives = logbook.open(monthColumns());
    benchmark::DoNotOptimize(countMonths(dives, kPoint, [](int) {}));
  }
}
BENCHMARK(graphMonth)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace nautrel
