// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_cells.h"

#include <algorithm>

#include "look/convert.h"
#include "look/reports/report_style.h"

namespace nautrel {
namespace {

// Of the size of the text.
constexpr double kPadding = 0.55;
constexpr double kLongestWord = 10;

bool isDigit(QChar character) {
  return character >= '0' && character <= '9';
}

/// "12", "-3,5", "21.10.1990", "14:07", "999.99 ft", "60min".
bool isFigure(QStringView text) {
  constexpr qsizetype kLongest = 24;
  constexpr qsizetype kLongestUnit = 4;
  static constexpr QStringView kBetween = u".,:/-+'";
  qsizetype end = 0;
  bool digits = false;
  while (end < text.size() && (isDigit(text[end]) || kBetween.contains(text[end])))
    digits |= isDigit(text[end++]);
  auto unit = text.sliced(end);
  if (unit.startsWith(' ')) unit = unit.sliced(1);
  return digits && text.size() <= kLongest && unit.size() <= kLongestUnit && !unit.contains(' ');
}

/// Scripts without blanks go on in the next line behind any character.
bool writtenWithoutBlanks(char16_t code) {
  return (code >= 0x2E80 && code < 0xA4D0) || (code >= 0xF900 && code < 0xFB00);
}

/// Whether a line may end behind a character that is followed by others.
bool mayEndBehind(QStringView text, qsizetype place) {
  return text[place] == u' ' || writtenWithoutBlanks(text[place].unicode()) ||
         (text[place] == u'-' && text[place + 1].isLetter());
}

double longestWord(QStringView text, const CharacterWidths& widths) {
  double longest = 0;
  qsizetype start = 0;
  for (qsizetype place = 0; place < text.size(); ++place) {
    const bool last = place + 1 == text.size();
    if (!last && !mayEndBehind(text, place)) continue;
    const auto word = text.sliced(start, place + 1 - start);
    longest = std::max(longest, widths.of(word.trimmed()));
    start = place + 1;
  }
  return longest;
}

/// What nearly all of the values stay below: one text that is much longer than all others does not
/// decide.
double usual(std::vector<double>& values) {
  constexpr double kNearlyAll = 0.95;
  if (values.empty()) return 0;
  const auto place = static_cast<std::ptrdiff_t>(kNearlyAll * static_cast<double>(values.size()));
  const auto found = values.begin() + std::min<std::ptrdiff_t>(place, std::ssize(values) - 1);
  std::nth_element(values.begin(), found, values.end());
  return *found;
}

/// On one line, and nothing in it that no paper shows.
QString shownText(const std::string& text) {
  QString shown = toQt(text);
  for (auto& character : shown)
    if (character.category() == QChar::Other_Control) character = ' ';
  return shown.simplified();
}

}  // namespace

CharacterWidths::CharacterWidths(const QFont& font) : metrics_(font) {
  constexpr int kLatin = 256;
  for (int code = 0; code < kLatin; ++code)
    widths_.push_back(metrics_.horizontalAdvance(QChar(code)));
}

double CharacterWidths::of(QStringView text) const {
  double width = 0;
  for (const QChar character : text) {
    if (character.unicode() >= widths_.size()) return shaped(text.toString());
    width += widths_[character.unicode()];
  }
  return width;
}

double CharacterWidths::shaped(const QString& text) const {
  const auto known = others_.constFind(text);
  if (known != others_.cend()) return *known;
  return *others_.insert(text, metrics_.horizontalAdvance(text));
}

ListCells::ListCells(const std::vector<std::string>& texts, const ListLayout& layout)
    : columns_(layout.columns.size()), widths_(paperFont(layout.textSize)) {
  cells_.reserve(texts.size());
  for (const auto& text : texts) {
    const QString shown = shownText(text);
    cells_.push_back({shown, widths_.of(shown), isFigure(shown)});
  }
  const CharacterWidths heads(paperFont(layout.textSize, kHeadWeight));
  for (std::size_t column = 0; column < columns_; ++column)
    needs_.push_back(needOf(column, layout, heads));
}

double ListCells::padding(double size) {
  return kPadding * size * kTwipsPerPoint;
}

ColumnNeed ListCells::needOf(std::size_t column, const ListLayout& layout,
                             const CharacterWidths& heads) const {
  const QString head = toQt(layout.columns[column].head).simplified();
  const double longest = kLongestWord * layout.textSize * kTwipsPerPoint;
  ColumnNeed need{std::min(longestWord(head, heads), longest), 0, heads.of(head),
                  layout.columns[column].width};
  std::vector<double> words;
  std::vector<double> lines;
  for (std::size_t row = 0; row < rows(); ++row) {
    const Cell& cell = at(row, column);
    if (cell.figure) {
      need.least = std::max(need.least, cell.width);
    } else if (!cell.text.isEmpty()) {
      words.push_back(std::min(longestWord(cell.text, widths_), longest));
      lines.push_back(cell.width);
    }
  }
  const double around = 2 * padding(layout.textSize);
  need.least += around;
  need.words = std::max(need.least, usual(words) + around);
  need.enough = std::max({need.words, usual(lines) + around, need.enough + around});
  return need;
}

}  // namespace nautrel
