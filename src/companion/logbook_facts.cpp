// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/logbook_facts.h"

#include <chrono>
#include <ctime>
#include <filesystem>

#include "companion/Companion.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "store/contract.h"
#include "store/database.h"
#include "store/database_file.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;

std::string momentOf(fs::file_time_type time, const Locale& locale) {
  using namespace std::chrono;
  const auto age = duration_cast<seconds>(fs::file_time_type::clock::now() - time);
  const auto moment = system_clock::to_time_t(system_clock::now() - age);
  const std::tm local = *std::localtime(&moment);
  return generalDate({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                      local.tm_min, local.tm_sec},
                     locale);
}

std::string sizeOf(std::uintmax_t bytes) {
  constexpr std::uintmax_t kKilo = 1024;
  const auto kilobytes = (bytes + kKilo - 1) / kKilo;
  if (kilobytes < 10 * kKilo) return std::to_string(kilobytes) + " KB";
  return std::to_string(kilobytes / kKilo) + " MB";
}

/// The file with what waits in its log.
void measure(const fs::path& path, const Locale& locale, LogbookFacts& facts) {
  std::error_code failed;
  auto changed = fs::last_write_time(path, failed);
  if (failed) return;
  auto bytes = fs::file_size(path, failed);
  auto log = path;
  log += "-wal";
  if (const auto size = fs::file_size(log, failed); !failed && size > 0) {
    bytes += size;
    changed = std::max(changed, fs::last_write_time(log, failed));
  }
  facts.changed = momentOf(changed, locale);
  facts.size = sizeOf(bytes);
}

}  // namespace

LogbookFacts factsOf(const std::string& path, const Locale& locale) {
  LogbookFacts facts{"not there", "-", "no dives that could be counted"};
  measure(nativePath(path), locale, facts);
  resumeNext([&] {
    Workspace workspace;
    const int dives = workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch).RecordCount();
    facts.dives = counted(dives, "dive");
    facts.sound = true;
  });
  return facts;
}

}  // namespace nautrel::exchange
