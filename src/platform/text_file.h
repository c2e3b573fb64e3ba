// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel {

/// The column in which the next item of a line starts; the first column is 1.
struct Tab {
  std::size_t column;
};

/// A text file that is written from its first line to its last, in the 8-bit western code page,
/// lines ended by CR LF. It is closed at the end of its life.
class TextFile {
 public:
  /// Makes the file or empties it. Raises 76 (no such folder) or 75 (it cannot be written).
  explicit TextFile(const std::string& path);
  ~TextFile();
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;

  /// Writes texts and tabs, one right behind the other, and ends the line. An item that finds the
  /// line already past its column starts in that column of the next line.
  template <class... Items>
  void line(const Items&... items) {
    (print(items), ...);
    endLine();
  }

 private:
  void print(std::string_view text);
  void print(Tab tab);
  void endLine();
  char* room(std::size_t bytes);
  void took(std::size_t bytes);
  void flush();

  std::ofstream out_;
  std::vector<char> block_ = std::vector<char>(64 << 10);
  std::size_t used_ = 0;    // bytes of the block that are still to be written
  std::size_t column_ = 0;  // bytes already on the line, one a character
};

/// The text of such a file. Raises 53 if there is none.
std::string readTextFile(const std::string& path);

/// Raises 53 if there is no such file, 75 if it cannot be deleted.
void deleteFile(const std::string& path);

}  // namespace nautrel
