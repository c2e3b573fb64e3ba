// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dated_name.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "exchange/side_files.h"

namespace nautrel::exchange {
namespace {

constexpr std::string_view kPattern = "0000-00-00-000000";
constexpr std::string_view kEnding = ".mdb";

std::string datedName(std::string_view kind, LocalTime time) {
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u-%02d%02d%02d", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()));
  return std::string(kind) + text + std::string(kEnding);
}

bool isFree(const std::filesystem::path& path) {
  std::error_code failed;
  return std::none_of(kSideFiles.begin(), kSideFiles.end(), [&](std::string_view side) {
    return std::filesystem::exists(std::filesystem::symlink_status(beside(path, side), failed));
  });
}

}  // namespace

std::filesystem::path freeDatedPath(const std::filesystem::path& folder, std::string_view kind,
                                    LocalTime time) {
  auto path = folder / datedName(kind, time);
  while (!isFree(path)) path = folder / datedName(kind, time += std::chrono::seconds(1));
  return path;
}

bool isDatedName(std::string_view name, std::string_view kind) {
  if (!name.starts_with(kind) || !name.ends_with(kEnding)) return false;
  name.remove_prefix(kind.size());
  if (name.size() != kPattern.size() + kEnding.size()) return false;
  const auto fits = [](char character, char pattern) {
    return pattern == '0' ? character >= '0' && character <= '9' : character == pattern;
  };
  return std::equal(kPattern.begin(), kPattern.end(), name.begin(),
                    [&](char pattern, char character) { return fits(character, pattern); });
}

}  // namespace nautrel::exchange
