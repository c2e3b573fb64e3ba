// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/list_template.h"

#include <array>
#include <optional>
#include <utility>

#include "platform/text.h"
#include "printing/template_marks.h"

namespace nautrel {
namespace {

/// Cuts off what stands before the separator; all of it if there is none.
std::string_view cut(std::string_view& rest, char separator) {
  const auto end = rest.find(separator);
  const auto part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
  return trimmed(part);
}

// A file that is no template at all may have lines of any length.
std::string quoted(std::string_view text) {
  constexpr std::size_t kMost = 60;
  return "\"" + firstCharacters(text, kMost) + "\"";
}

// A template reads the same everywhere: its numbers have a point.
double measure(std::string_view text, double least, double most) {
  const auto number = tryNumber(text, Locale{});
  if (!number || *number < least || *number > most)
    throw ReportFault{quoted(text) + " is no measure from " + generalText(least, {}) + " to " +
                      generalText(most, {}) + "."};
  return *number;
}

template <class Choice, std::size_t count>
Choice choice(std::string_view text,
              const std::array<std::pair<std::string_view, Choice>, count>& choices) {
  std::string known;
  for (const auto& [name, chosen] : choices) {
    if (name == text) return chosen;
    known += (known.empty() ? "" : ", ") + std::string(name);
  }
  throw ReportFault{quoted(text) + " is none of: " + known + "."};
}

ListLayout::Paper paper(std::string_view text) {
  using Paper = ListLayout::Paper;
  static constexpr std::array<std::pair<std::string_view, Paper>, 3> kPapers{
      {{"auto", Paper::Auto}, {"portrait", Paper::Portrait}, {"landscape", Paper::Landscape}}};
  return choice(text, kPapers);
}

ListLayout::Alignment alignment(std::string_view text) {
  using Alignment = ListLayout::Alignment;
  static constexpr std::array<std::pair<std::string_view, Alignment>, 3> kAlignments{
      {{"left", Alignment::Left}, {"center", Alignment::Center}, {"right", Alignment::Right}}};
  return choice(text, kAlignments);
}

void addColumn(ListTemplate& list, std::string_view value) {
  constexpr std::size_t kMostColumns = 60;
  if (list.cells.size() == kMostColumns)
    throw ReportFault{"It has more than " + std::to_string(kMostColumns) + " columns."};
  const auto head = cut(value, '|');
  const auto width = cut(value, '|');
  const auto aligned = cut(value, '|');
  list.layout.columns.push_back({std::string(head), measure(width, 1, 1000), alignment(aligned)});
  list.cells.emplace_back(trimmed(value));
}

void set(ListTemplate& list, std::string_view name, std::string_view value) {
  if (name == "rows") {
    list.table = value;
  } else if (name == "title") {
    list.title = value;
  } else if (name == "subtitle") {
    list.subtitle = value;
  } else if (name == "footer") {
    list.footer = value;
  } else if (name == "paper") {
    list.layout.paper = paper(value);
  } else if (name == "size") {
    list.layout.textSize = measure(value, 4, 72);
  } else if (name == "lines") {
    list.layout.linesPerCell = static_cast<int>(measure(value, 1, 20));
  } else if (name == "column") {
    addColumn(list, value);
  } else {
    throw ReportFault{quoted(name) + " is no name of a setting."};
  }
}

void readLine(ListTemplate& list, std::string_view line) {
  if (line.empty() || line.front() == '#') return;
  if (line.find(':') == std::string_view::npos)
    throw ReportFault{quoted(line) + " has no colon behind a name."};
  const auto name = cut(line, ':');
  set(list, name, trimmed(line));
}

}  // namespace

ListTemplate parseListTemplate(std::string_view source) {
  ListTemplate list;
  for (int number = 1; !source.empty(); ++number) {
    const auto line = cut(source, '\n');
    try {
      readLine(list, line);
    } catch (const ReportFault& fault) {
      throw ReportFault{"Line " + std::to_string(number) + ": " + fault.text};
    }
  }
  if (list.table.empty()) throw ReportFault{"It names no table (\"rows: ...\")."};
  if (list.cells.empty()) throw ReportFault{"It has no columns (\"column: ...\")."};
  return list;
}

}  // namespace nautrel
