// SPDX-License-Identifier: GPL-2.0-or-later
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "exchange/dates.h"
#include "exchange/dive_record.h"
#include "exchange/import_source.h"
#include "platform/text.h"

// Whatever bytes a file holds: it is refused with a sentence, or each dive that is not left out has
// what a dive must have, in the boxes of the entry windows. FORMAT is given by the build.

namespace nautrel::exchange {
namespace {

[[noreturn]] void fail(const char* what, int line) {
  std::fprintf(stderr, "%s, dive of line %d\n", what, line);
  std::abort();
}

void look(const SourceDive& dive) {
  if (dive.ours || !dive.leftOutBecause.empty()) return;
  if (!hasRealDate(dive.record)) fail("no date", dive.line);
  for (const int column : {Feld::Zeit, Feld::Tiefe})
    if (!tryNumber(dive.record.text(column), {})) fail("no number", dive.line);
  for (int column = 0; column < kDiveColumns; ++column) {
    const auto length = static_cast<std::size_t>(diveColumn(column).boxLength);
    if (length > 0 && characters(dive.record.text(column)) > length) fail("too long", dive.line);
  }
}

void read(const std::string& path) {
  try {
    const auto source = openSource(path, Format::FORMAT);
    const Answers answers{DateOrder::DayFirst, DurationForm::HoursMinutes, UnitSystem::Metric};
    for (const auto& dive : source->dives(answers, {})) look(dive);
    source->card();
    source->equipment();
  } catch (const Refused& refused) {
    if (refused.text.empty()) std::abort();
  }
}

}  // namespace
}  // namespace nautrel::exchange

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto path = (std::filesystem::temp_directory_path() /
                            ("nautrel-fuzz-" + std::to_string(std::random_device{}())))
                               .string();
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  nautrel::exchange::read(path);
  return 0;
}
