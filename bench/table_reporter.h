// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace nautrel::bench {

inline constexpr const char* kOurs = " | nautrel";
inline constexpr const char* kBare = " | bare";

/// Prints one line for each benchmark, with the medians of all rounds: time, the bare calls' time
/// and the ratio where there is a pair, and the label that the benchmark set.
class TableReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  struct Line {
    std::string name;
    std::int64_t place = 0;
    double ours = 0;
    double bare = 0;
    const char* unit = "";
    std::string label;
  };
  Line& lineOf(const std::string& name);

  std::vector<Line> lines_;
};

}  // namespace nautrel::bench
