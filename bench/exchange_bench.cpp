// SPDX-License-Identifier: GPL-2.0-or-later
#include <expat.h>

#include <fstream>
#include <string>
#include <vector>

#include "bench_support.h"
#include "exchange/export.h"
#include "exchange/import_plan.h"
#include "store/delivered.h"

// Dives out and in again, and a file of another program that is nearly all samples, beside the
// floor of its reading: the parser alone. Labels tell the most memory that was in use.

namespace nautrel::bench {
namespace {

using namespace nautrel::exchange;

constexpr std::size_t kForeignBytes = 200U << 20;

/// The most memory of the process since reset(), as the system counts it.
class PeakMemory {
 public:
  PeakMemory() { std::ofstream("/proc/self/clear_refs") << "5"; }
  /// In steps, since the rounds of a benchmark must agree on it.
  std::string label() const {
    constexpr long kStep = 25 * 1024;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
      if (line.starts_with("VmHWM:"))
        return "under " + std::to_string((std::stol(line.substr(6)) / kStep + 1) * 25) + " MB";
    return {};
  }
};

const Logbook& fullLogbook() {
  static const Logbook logbook;
  return logbook;
}

std::string fileFor(Format format) {
  return (fullLogbook().folder() / (format == Format::Uddf ? "a.uddf" : "a.csv")).string();
}

void exportAll(benchmark::State& state, Format format) {
  Workspace workspace;
  fullLogbook();
  const PeakMemory memory;
  for (auto _ : state)
    exportLogbook(workspace, fullLogbook().path(), fileFor(format),
                  {.format = format, .overwrite = true}, {});
  state.SetLabel(memory.label());
}

void importAll(benchmark::State& state, Format format) {
  Workspace workspace;
  exportLogbook(workspace, fullLogbook().path(), fileFor(format),
                {.format = format, .overwrite = true}, {});
  const auto empty = (fullLogbook().folder() / "empty.mdb").string();
  const PeakMemory memory;
  for (auto _ : state) {
    state.PauseTiming();
    for (const char* side : {"", "-wal", "-shm"}) std::filesystem::remove(empty + side);
    createDeliveredLogbook(empty);
    state.ResumeTiming();
    const auto source = openSource(fileFor(format));
    ImportPlan::make(*source, {}, workspace, empty, {}).execute(workspace, empty);
  }
  state.SetLabel(memory.label());
}

/// Dives with a sample for every second, as computers write them.
void writeForeign(const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  file << "<?xml version=\"1.0\"?>\n<uddf version=\"3.2.1\"><profiledata><repetitiongroup>\n";
  for (int dive = 0; static_cast<std::size_t>(file.tellp()) < kForeignBytes; ++dive) {
    file << "<dive id=\"d" << dive << "\"><informationbeforedive><datetime>2001-03-05T10:00:00"
         << "</datetime></informationbeforedive>\n<samples>\n";
    for (int second = 0; second < 3000; ++second)
      file << "  <waypoint>\n    <depth>" << second % 40 << ".35</depth>\n    <divetime>" << second
           << "</divetime>\n    <temperature>291.15</temperature>\n  </waypoint>\n";
    file << "</samples><informationafterdive><greatestdepth>39.35</greatestdepth>"
         << "<diveduration>3000</diveduration></informationafterdive></dive>\n";
  }
  file << "</repetitiongroup></profiledata></uddf>\n";
}

const std::string& foreignFile() {
  static const std::string path = [] {
    auto file = (fullLogbook().folder() / "foreign.uddf").string();
    writeForeign(file);
    return file;
  }();
  return path;
}

void readForeign(benchmark::State& state) {
  foreignFile();
  const PeakMemory memory;
  for (auto _ : state) benchmark::DoNotOptimize(openSource(foreignFile())->dives({}, {}).size());
  state.SetLabel(memory.label());
}

/// With handlers that do nothing, so that the parser takes names and texts apart as well.
void parseForeign(benchmark::State& state) {
  std::vector<char> block(1U << 20);
  for (auto _ : state) {
    XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetElementHandler(
        parser, [](void*, const char*, const char**) {}, [](void*, const char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const char*, int) {});
    std::ifstream file(foreignFile(), std::ios::binary);
    while (file.read(block.data(), static_cast<std::streamsize>(block.size())) || file.gcount() > 0)
      XML_Parse(parser, block.data(), static_cast<int>(file.gcount()), 0);
    XML_ParserFree(parser);
  }
}

const bool kRegistered = [] {
  const auto run = [](const char* name, auto work, Format format) {
    benchmark::RegisterBenchmark(name, work, format)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
  };
  run("9999 dives out, UDDF", exportAll, Format::Uddf);
  run("9999 dives out, CSV", exportAll, Format::Csv);
  run("9999 dives in, UDDF", importAll, Format::Uddf);
  run("9999 dives in, CSV", importAll, Format::Csv);
  compare("200 MB of samples", 1, readForeign, parseForeign);
  return true;
}();

}  // namespace
}  // namespace nautrel::bench
