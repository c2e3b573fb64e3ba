// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/draft_file.h"

#include <algorithm>
#include <array>
#include <random>

#include "platform/files.h"

namespace nautrel {
namespace {

constexpr std::string_view kMark = ".new";
constexpr std::array<std::string_view, 4> kSides{"", "-wal", "-shm", "-journal"};

}  // namespace

DraftFile::DraftFile(const std::string& target)
    : path_(target + std::string(kMark) + std::to_string(std::random_device{}())) {}

DraftFile::~DraftFile() {
  std::error_code ignored;
  for (const auto side : kSides)
    std::filesystem::remove(nativePath(path_ + std::string(side)), ignored);
}

bool DraftFile::isDraftOf(std::string_view target, std::string_view name) {
  if (!name.starts_with(target)) return false;
  name.remove_prefix(target.size());
  if (!name.starts_with(kMark)) return false;
  name.remove_prefix(kMark.size());
  const auto digits = std::min(name.find_first_not_of("0123456789"), name.size());
  return digits > 0 && std::find(kSides.begin(), kSides.end(), name.substr(digits)) != kSides.end();
}

}  // namespace nautrel
