#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel::exchange {

/// A logbook and what the database engine lays beside it: by their names alone it knows what
/// belongs together.
inline constexpr std::array<std::string_view, 4> kSideFiles{"", "-wal", "-shm", "-journal"};

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

/// A path as the core names it.
inline std::string utf8(const std::filesystem::path& path) {
  const auto text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace nautrel::exchange
