// SPDX-License-Identifier: GPL-2.0-or-later
#include "table_reporter.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace nautrel::bench {
namespace {

bool cutEnd(std::string& text, std::string_view end) {
  if (!text.ends_with(end)) return false;
  text.resize(text.size() - end.size());
  return true;
}

}  // namespace

bool TableReporter::ReportContext(const Context&) {
  return true;
}

TableReporter::Line& TableReporter::lineOf(const std::string& name) {
  const auto known = std::find_if(lines_.begin(), lines_.end(),
                                  [&](const Line& line) { return line.name == name; });
  if (known != lines_.end()) return *known;
  Line& line = lines_.emplace_back();
  line.name = name;
  return line;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const auto& run : runs) {
    if (run.error_occurred) std::fprintf(stderr, "%s\n", run.error_message.c_str());
    if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
    std::string name = run.run_name.function_name;
    if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
    const bool bare = cutEnd(name, kBare);
    cutEnd(name, kOurs);
    Line& line = lineOf(name);
    line.place = run.family_index;
    (bare ? line.bare : line.ours) = run.GetAdjustedRealTime();
    line.unit = benchmark::GetTimeUnitString(run.time_unit);
    if (!run.report_label.empty()) line.label = run.report_label;
  }
}

void TableReporter::Finalize() {
  std::sort(lines_.begin(), lines_.end(),
            [](const Line& one, const Line& other) { return one.place < other.place; });
  std::printf("%-44s %14s %14s %7s\n", "", "nautrel", "bare calls", "ratio");
  for (const auto& line : lines_) {
    std::printf("%-44s %11.3f %s", line.name.c_str(), line.ours, line.unit);
    if (line.bare > 0) std::printf(" %11.3f %s %7.2f", line.bare, line.unit, line.ours / line.bare);
    std::printf("  %s\n", line.label.c_str());
  }
}

}  // namespace nautrel::bench
