// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace nautrel {

/// A name of its own beside a file, for what is to take that file's place once it is whole. What
/// stands under it at the end is removed, and what the database engine laid beside it.
class DraftFile {
 public:
  explicit DraftFile(const std::string& target);
  ~DraftFile();
  DraftFile(const DraftFile&) = delete;
  DraftFile& operator=(const DraftFile&) = delete;

  const std::string& path() const { return path_; }

  /// Whether a file is what a program that was killed has left of a draft of `target`, or beside
  /// it; both are names without a folder.
  static bool isDraftOf(std::string_view target, std::string_view name);

 private:
  std::string path_;
};

}  // namespace nautrel
