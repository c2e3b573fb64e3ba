// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/csv_writer.h"

#include "exchange/dates.h"

namespace nautrel::exchange {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string head(const DiveColumn& column) {
  std::string head(column.label);
  if (!column.unit.empty()) head.append(" [").append(column.unit).append("]");
  return head;
}

std::vector<std::string> makeHeader() {
  std::vector<std::string> header;
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal)
    header.push_back(head(diveColumn(ordinal)));
  return header;
}

bool beginsLikeFormula(std::string_view text) {
  const auto first = text.find_first_not_of('\'');
  return first != std::string_view::npos &&
         std::string_view("=+-@\t\r").find(text[first]) != std::string_view::npos;
}

std::size_t skipDigits(std::string_view text, std::size_t at) {
  const auto end = text.find_first_not_of("0123456789", at);
  return end == std::string_view::npos ? text.size() : end;
}

bool isPlainNumber(std::string_view text) {
  const std::size_t start = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  auto end = skipDigits(text, start);
  if (end == start) return false;
  if (end < text.size() && (text[end] == '.' || text[end] == ',')) end = skipDigits(text, end + 1);
  return end == text.size();
}

void appendQuoted(std::string& file, std::string_view text) {
  file += '"';
  for (const char character : text) file.append(character == '"' ? 2 : 1, character);
  file += '"';
}

}  // namespace

const std::vector<std::string>& ownCsvHeader() {
  static const auto header = makeHeader();
  return header;
}

char csvSeparatorFor(std::string_view decimalSign) {
  return decimalSign == "." ? ',' : ';';
}

std::string guarded(std::string_view text) {
  const bool harmful = beginsLikeFormula(text) && !isPlainNumber(text);
  return (harmful ? "'" : "") + std::string(text);
}

std::string unguarded(std::string_view cell) {
  const bool wasGuarded = cell.starts_with('\'') && beginsLikeFormula(cell);
  return std::string(cell.substr(wasGuarded ? 1 : 0));
}

void appendCsvHeader(std::string& file, char separator) {
  file += kCsvDateColumn;
  for (const auto& head : ownCsvHeader()) (file += separator) += head;
  file += kLineEnd;
}

void appendCsvDive(std::string& file, char separator, const DiveRecord& dive) {
  file += isoDate(dive).value_or("");
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal) {
    file += separator;
    if (diveColumn(ordinal).isFlag)
      file += dive.flags[ordinal] ? '1' : '0';
    else if (dive.texts[ordinal])
      appendQuoted(file, guarded(*dive.texts[ordinal]));
  }
  file += kLineEnd;
}

}  // namespace nautrel::exchange
