// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nautrel::exchange {

struct CsvCell {
  std::string_view text;
  bool quoted = false;
};

struct CsvRow {
  int line = 0;  // of the file, on which it begins
  std::vector<CsvCell> cells;
};

/// A CSV file in its rows, the header first; every row as wide as the header. Lines without
/// anything do not count.
class CsvTable {
 public:
  /// Takes the file as it was read: finds its encoding (a mark, else UTF-8 where it is that, else
  /// the western code page; bytes behind a mark stay as they are) and its separator. Raises
  /// Refused, with the line: a quotation mark that is not closed, rows of another width than the
  /// header, more than 9999 dives or 200 columns.
  CsvTable(std::string file, const std::string& fileName);
  CsvTable(const CsvTable&) = delete;
  CsvTable& operator=(const CsvTable&) = delete;

  char separator() const { return separator_; }
  const CsvRow& header() const { return rows_.front(); }
  std::vector<CsvRow>::const_iterator begin() const { return rows_.begin() + 1; }
  std::vector<CsvRow>::const_iterator end() const { return rows_.end(); }
  std::size_t rowCount() const { return rows_.size() - 1; }
  /// The first line of a file marked as UTF-8 that is none; 0 if there is none.
  int brokenLine() const { return brokenLine_; }

 private:
  void decode(const std::string& fileName);
  std::size_t takeSeparatorLine();
  void findSeparator(std::size_t start);
  void requireWidths(const std::string& fileName);

  std::string text_;
  char separator_ = 0;
  int brokenLine_ = 0;
  std::vector<CsvRow> rows_;
};

}  // namespace nautrel::exchange
