// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/page_markup.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "printing/report_fault.h"

namespace nautrel {
namespace {

// The text engine takes twice as long with each table in a table, and the square of the length for
// a word that no line holds.
constexpr std::size_t kDeepestElement = 100;
constexpr std::size_t kDeepestTable = 10;
constexpr std::size_t kMostCells = 100'000;
constexpr std::size_t kLongestWord = 20'000;

[[noreturn]] void refuse(std::size_t most, const char* what) {
  throw ReportFault{"The page: more than " + std::to_string(most) + what};
}

char lower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}

std::string lowered(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(), lower);
  return result;
}

/// An opening or closing tag.
struct Tag {
  std::string name;
  std::string_view attributes;
  bool closes = false;
};

/// The next tag of what is left of a page, which then begins behind it. An empty name: there is
/// none.
Tag nextTag(std::string_view& rest) {
  Tag tag;
  rest.remove_prefix(std::min(rest.find('<'), rest.size()));
  if (rest.empty()) return tag;
  const auto whole = rest.substr(1, rest.find('>') - 1);
  rest.remove_prefix(std::min(whole.size() + 1, rest.size()));
  tag.closes = whole.starts_with('/');
  const auto start = tag.closes ? 1U : 0U;
  const auto end = std::min(whole.find_first_of(" \t\r\n/", start), whole.size());
  tag.name = lowered(whole.substr(start, end - start));
  tag.attributes = whole.substr(end);
  if (tag.name.empty()) tag.name = "?";
  return tag;
}

/// Elements that end by themselves, or need no end.
bool endsByItself(std::string_view name) {
  static constexpr std::array<std::string_view, 22> kNames = {
      "?",     "!doctype", "br", "hr",    "img",   "meta",  "link", "base",
      "input", "col",      "p",  "li",    "td",    "tr",    "th",   "thead",
      "dt",    "colgroup", "dd", "tbody", "tfoot", "option"};
  return std::ranges::find(kNames, name) != kNames.end();
}

std::size_t numberOf(std::string_view attributes, std::string_view name) {
  const auto all = lowered(attributes);
  const auto at = all.find(name);
  if (at == std::string::npos) return 1;
  const auto digits = all.find_first_of("0123456789", at);
  std::size_t number = 1;
  if (digits != std::string::npos)
    std::from_chars(all.data() + digits, all.data() + all.size(), number);
  return std::max<std::size_t>(number, 1);
}

/// The cells that a table takes, which are as many in each row as in its widest.
struct TableCells {
  std::size_t rows = 0;
  std::size_t row = 0;
  std::size_t widest = 0;
  std::size_t lowest = 0;  // the row that the lowest cell reaches down to

  void add(std::string_view attributes) {
    row += numberOf(attributes, "colspan");
    widest = std::max(widest, row);
    lowest = std::max(lowest, rows + numberOf(attributes, "rowspan") - 1);
  }
  std::size_t count() const {
    const auto all = std::max(rows, lowest);
    return widest != 0 && all > kMostCells / widest ? kMostCells + 1 : all * widest;
  }
};

class MarkupCheck {
 public:
  void see(const Tag& tag) {
    if (tag.name == "table") seeTable(tag.closes);
    if (!tables_.empty() && !tag.closes) seeCell(tag);
    if (endsByItself(tag.name)) return;
    if (tag.closes)
      depth_ -= depth_ > 0 ? 1 : 0;
    else if (++depth_ > kDeepestElement)
      refuse(kDeepestElement, " elements stand in each other.");
  }
  void end() {
    while (!tables_.empty()) seeTable(true);
  }

 private:
  void seeTable(bool closes) {
    if (!closes) {
      tables_.emplace_back();
      if (tables_.size() > kDeepestTable) refuse(kDeepestTable, " tables stand in each other.");
    } else if (!tables_.empty()) {
      cells_ += tables_.back().count();
      tables_.pop_back();
    }
    if (cells_ > kMostCells) refuse(kMostCells, " cells stand in its tables.");
  }
  void seeCell(const Tag& tag) {
    auto& table = tables_.back();
    if (tag.name == "tr") {
      ++table.rows;
      table.row = 0;
    } else if (tag.name == "td" || tag.name == "th") {
      table.add(tag.attributes);
    }
  }

  std::vector<TableCells> tables_;
  std::size_t depth_ = 0;
  std::size_t cells_ = 0;
};

/// The words between the tags.
void checkWords(std::string_view html) {
  while (!html.empty()) {
    const auto end = std::min(html.find_first_of(" \t\r\n<"), html.size());
    if (end > kLongestWord) refuse(kLongestWord, " characters stand without a blank.");
    const bool tag = end < html.size() && html[end] == '<';
    html.remove_prefix(tag ? std::min(html.find('>', end), html.size()) : end);
    html.remove_prefix(std::min<std::size_t>(1, html.size()));
  }
}

}  // namespace

std::string withoutRemarks(std::string_view html) {
  std::string result;
  while (!html.empty()) {
    const auto start = std::min(html.find("<!--"), html.size());
    result += html.substr(0, start);
    html.remove_prefix(start);
    const auto end = html.find("-->");
    html.remove_prefix(end == std::string_view::npos ? html.size() : end + 3);
  }
  return result;
}

std::string cutElement(std::string& html, std::string_view name) {
  const auto all = lowered(html);
  const std::string open = "<" + std::string(name) + ">";
  const std::string close = "</" + std::string(name) + ">";
  const auto start = all.find(open);
  const auto end = start == std::string::npos ? start : all.find(close, start);
  if (end == std::string::npos) return {};
  const auto inside = html.substr(start + open.size(), end - start - open.size());
  html.erase(start, end + close.size() - start);
  return inside;
}

void checkMarkup(std::string_view html) {
  checkWords(html);
  MarkupCheck check;
  for (auto tag = nextTag(html); !tag.name.empty(); tag = nextTag(html)) check.see(tag);
  check.end();
}

}  // namespace nautrel
