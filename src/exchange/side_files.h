// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "store/database_file.h"

namespace nautrel::exchange {

inline std::filesystem::path beside(const std::filesystem::path& logbook, std::string_view side) {
  auto path = logbook;
  return path += side;
}

/// What stands in a folder; nothing where it cannot be read.
inline std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  std::error_code failed;
  for (std::filesystem::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed))
    files.push_back(entry->path());
  return files;
}

}  // namespace nautrel::exchange
