// SPDX-License-Identifier: GPL-2.0-or-later
#include <benchmark/benchmark.h>

#include <vector>

#include "table_reporter.h"

/// The medians of eleven rounds, the benchmarks of a program in turns so that what disturbs the
/// machine for a while disturbs all of them. The library's own options still work behind these.
int main(int count, char** arguments) {
  char rounds[] = "--benchmark_repetitions=11";
  char turns[] = "--benchmark_enable_random_interleaving=true";
  std::vector<char*> all{arguments[0], rounds, turns};
  all.insert(all.end(), arguments + 1, arguments + count);
  int given = static_cast<int>(all.size());
  benchmark::Initialize(&given, all.data());
  if (benchmark::ReportUnrecognizedArguments(given, all.data())) return 1;
  nautrel::bench::TableReporter table;
  benchmark::RunSpecifiedBenchmarks(&table);
}
