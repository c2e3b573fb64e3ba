// SPDX-License-Identifier: GPL-2.0-or-later
#include <benchmark/benchmark.h>

#include "calculators/diving_physics.h"
#include "calculators/unit_conversion.h"

// A keystroke in the unit calculator converts its page; it is to take less than 20 microseconds,
// letters included.

namespace nautrel {
namespace {

const Locale kPoint;

void convertPage(benchmark::State& state, int source, const char* before, const char* typed) {
  const auto page = convertUnits(source, {{source, before}}, kPoint);
  for (auto _ : state) {
    auto texts = page;
    texts[source] = typed;
    benchmark::DoNotOptimize(convertUnits(source, std::move(texts), kPoint));
  }
}

BENCHMARK_CAPTURE(convertPage, digits, 10, "60", "61.7");
BENCHMARK_CAPTURE(convertPage, letters, 10, "60", "61.7 miles");
BENCHMARK_CAPTURE(convertPage, huge, 10, "60", "1.23456789E300");
BENCHMARK_CAPTURE(convertPage, tiny, 10, "60", "1.23456789E-300");
BENCHMARK_CAPTURE(convertPage, pressure, 35, "14.7", "15");
BENCHMARK_CAPTURE(convertPage, emptied, 10, "60", "");

void drawScene(benchmark::State& state) {
  const AirTexts air{"66", "0", "12", "1.2"};
  for (auto _ : state)
    benchmark::DoNotOptimize(airScene({}, air, airAtDepths(air, kPoint), kPoint));
}
BENCHMARK(drawScene);

}  // namespace
}  // namespace nautrel
