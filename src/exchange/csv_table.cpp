// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/csv_table.h"

#include <algorithm>

#include "exchange/format.h"
#include "exchange/plain_text.h"
#include "platform/text.h"

namespace nautrel::exchange {
namespace {

constexpr std::size_t kMostRows = 9999;
constexpr std::size_t kMostColumns = 200;
constexpr std::string_view kSeparators = ",;\t|";

/// Takes a text apart, row by row. Quoted cells lose their quotation marks in the text itself.
class CsvScanner {
 public:
  CsvScanner(std::string& text, std::size_t start, int line, char separator)
      : text_(text), at_(start), line_(line), separator_(separator) {}

  /// False at the end. Raises Refused.
  bool next(CsvRow& row) {
    do {
      if (at_ >= text_.size()) return false;
      row.line = line_;
      row.cells.clear();
      while (takeCell(row)) {
        if (row.cells.size() == kMostColumns)
          throw Refused{"Line " + std::to_string(row.line) + " has more than 200 columns."};
      }
    } while (isBlank(row));
    return true;
  }

 private:
  static bool isBlank(const CsvRow& row) {
    return row.cells.size() == 1 && !row.cells[0].quoted && trimmed(row.cells[0].text).empty();
  }

  bool atLineEnd() const { return text_[at_] == '\n' || text_[at_] == '\r'; }

  void skipLineEnd() {
    at_ += text_.compare(at_, 2, "\r\n") == 0 ? 2 : 1;
    ++line_;
  }

  /// True if another cell follows in the row.
  bool takeCell(CsvRow& row) {
    const bool quoted = at_ < text_.size() && text_[at_] == '"';
    const auto start = at_;
    auto end = quoted ? takeQuoted() : start;
    for (; at_ < text_.size() && text_[at_] != separator_ && !atLineEnd(); ++at_)
      text_[end++] = text_[at_];
    row.cells.push_back({std::string_view(text_).substr(start, end - start), quoted});
    if (at_ == text_.size()) return false;
    if (atLineEnd()) {
      skipLineEnd();
      return false;
    }
    ++at_;
    return true;
  }

  /// Moves the content to the front of the cell and gives its end.
  std::size_t takeQuoted() {
    const int opened = line_;
    auto end = at_++;
    for (;; ++at_) {
      if (at_ >= text_.size())
        throw Refused{"The quotation mark of line " + std::to_string(opened) + " is never closed."};
      if (text_[at_] == '"' && text_.compare(at_, 2, "\"\"") != 0) break;
      if (text_[at_] == '"') ++at_;
      if (text_[at_] == '\n' || (text_[at_] == '\r' && text_.compare(at_, 2, "\r\n") != 0)) ++line_;
      text_[end++] = text_[at_];
    }
    ++at_;
    return end;
  }

  std::string& text_;
  std::size_t at_;
  int line_;
  char separator_;
};

/// How well a separator fits the first rows: their width if all have the same, else 0.
std::size_t commonWidth(std::string beginning, char separator) {
  constexpr int kRows = 20;
  CsvRow row;
  std::size_t width = 0;
  CsvScanner scanner(beginning, 0, 1, separator);
  try {
    for (int count = 0; count < kRows && scanner.next(row); ++count) {
      if (width == 0) width = row.cells.size();
      if (row.cells.size() != width) return 0;
    }
  } catch (const Refused&) {
    // The beginning may end within a quoted cell.
  }
  return width;
}

}  // namespace

CsvTable::CsvTable(std::string file, const std::string& fileName) : text_(std::move(file)) {
  decode(fileName);
  const auto start = takeSeparatorLine();
  if (separator_ == 0) findSeparator(start);
  CsvScanner scanner(text_, start, start == 0 ? 1 : 2, separator_);
  for (CsvRow row; scanner.next(row);) {
    if (rows_.size() > kMostRows) throw Refused{fileName + " holds more than 9999 dives."};
    rows_.push_back(row);
  }
  if (rows_.empty()) throw Refused{fileName + " holds no dives."};
  requireWidths(fileName);
}

void CsvTable::decode(const std::string& fileName) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (text_.starts_with("\xFF\xFE") || text_.starts_with("\xFE\xFF"))
    throw Refused{fileName + " is in UTF-16. Please save it as UTF-8."};
  const bool marked = text_.starts_with(kMark);
  if (marked) text_.erase(0, kMark.size());
  const auto sound = utf8Bytes(text_);
  if (sound == text_.size()) return;
  if (marked)
    brokenLine_ = 1 + static_cast<int>(std::count(text_.begin(), text_.begin() + sound, '\n'));
  else
    text_ = fromCodePage(text_);
}

/// Spreadsheets name the separator in a line of its own: "sep=;".
std::size_t CsvTable::takeSeparatorLine() {
  constexpr std::string_view kWord = "sep=";
  const auto end = text_.find_first_of("\r\n");
  auto line = lowerAscii(text_.substr(0, std::min<std::size_t>(end, kWord.size() + 3)));
  if (line.size() == kWord.size() + 3 && line.front() == '"' && line.back() == '"')
    line = line.substr(1, kWord.size() + 1);
  if (end == std::string::npos || !line.starts_with(kWord) || line.size() != kWord.size() + 1)
    return 0;
  separator_ = line.back();
  return end + (text_.compare(end, 2, "\r\n") == 0 ? 2 : 1);
}

void CsvTable::findSeparator(std::size_t start) {
  constexpr std::size_t kBeginning = 1U << 20;
  const auto beginning = text_.substr(start, kBeginning);
  const auto firstLine = beginning.substr(0, beginning.find_first_of("\r\n"));
  std::size_t best = 1;
  std::ptrdiff_t most = 0;
  for (const char each : kSeparators) {
    const auto width = commonWidth(beginning, each);
    if (width > best) {
      best = width;
      separator_ = each;
    }
  }
  if (separator_ != 0) return;
  // Ragged rows: the header tells, and the row that does not fit is told.
  separator_ = kSeparators.front();
  for (const char each : kSeparators)
    if (const auto count = std::count(firstLine.begin(), firstLine.end(), each); count > most) {
      most = count;
      separator_ = each;
    }
}

/// Some programs end each line with a separator; cells behind the last head that hold nothing do
/// not count.
void CsvTable::requireWidths(const std::string& fileName) {
  auto& heads = rows_.front().cells;
  while (heads.size() > 1 && trimmed(heads.back().text).empty()) heads.pop_back();
  for (auto& row : rows_) {
    while (row.cells.size() > heads.size() && trimmed(row.cells.back().text).empty())
      row.cells.pop_back();
    if (row.cells.size() != heads.size())
      throw Refused{fileName + " cannot be read: line " + std::to_string(row.line) + " has " +
                    std::to_string(row.cells.size()) + " cells, the header " +
                    std::to_string(heads.size()) + "."};
  }
}

}  // namespace nautrel::exchange
