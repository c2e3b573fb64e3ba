// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files.h"

namespace nautrel {
namespace fs = std::filesystem;
namespace {

/// As many links in a row as the systems follow themselves.
constexpr int kMostLinks = 40;

}  // namespace

fs::path nativePath(const std::string& path) {
  return fs::path(std::u8string(path.begin(), path.end()));
}

std::string utf8(const fs::path& path) {
  const auto text = path.u8string();
  return {text.begin(), text.end()};
}

// Written out by hand, since the library's own resolving stops before a link to nothing, through
// which a file would be made all the same.
fs::path followLinks(const fs::path& path) {
  std::error_code failed;
  auto at = fs::absolute(path, failed);
  for (int links = 0; links < kMostLinks && fs::is_symlink(at, failed); ++links) {
    const auto target = fs::read_symlink(at, failed);
    if (failed) break;
    at = at.parent_path() / target;
  }
  return at;
}

bool sameFile(const fs::path& one, const fs::path& other) {
  std::error_code missing;
  if (fs::equivalent(one, other, missing)) return true;
  const auto first = followLinks(one);
  const auto second = followLinks(other);
  return sameName(first.filename(), second.filename()) &&
         fs::equivalent(first.parent_path(), second.parent_path(), missing);
}

bool canBeWritten(const fs::path& path) {
  const auto file = followLinks(path);
  std::error_code failed;
  switch (fs::status(file, failed).type()) {
    case fs::file_type::not_found:
      return file.has_filename() && fs::is_directory(file.parent_path(), failed) &&
             mayMakeFileIn(file.parent_path());
    case fs::file_type::none:
    case fs::file_type::directory:
      return false;
    default:
      return mayWrite(file);
  }
}

}  // namespace nautrel
