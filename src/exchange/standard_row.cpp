// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/standard_row.h"

#include <algorithm>
#include <span>

#include "exchange/dates.h"
#include "exchange/plain_text.h"
#include "exchange/units.h"
#include "exchange/xml_text.h"
#include "platform/text.h"

namespace nautrel::exchange {
namespace {

enum class Form { Text, Date, Price, Notes, None };

struct RowColumn {
  Form form = Form::Text;
  std::size_t boxLength = 20;  // 0 for no limit
};

constexpr RowColumn kText{};
constexpr RowColumn kCard[Karte::Count] = {kText,
                                           kText,
                                           kText,
                                           {Form::Text, 0},
                                           kText,
                                           kText,
                                           kText,
                                           kText,
                                           kText,
                                           {Form::Date, 10},
                                           {Form::Date, 10},
                                           kText,
                                           kText,
                                           kText,
                                           kText,
                                           {Form::Notes, 255}};
constexpr RowColumn kPiece[Stück::Count] = {kText,
                                            kText,
                                            kText,
                                            {Form::Date, 20},
                                            {Form::None, 20},
                                            kText,
                                            {Form::Notes, 255},
                                            {Form::None, 10},
                                            {Form::Price, 10}};

constexpr std::string_view kNull = " (null)";
constexpr std::string_view kEmpty = " (empty)";
constexpr std::string_view kBase64 = " (base64): ";
constexpr std::string_view kPlain = ": ";

class Rules {
 public:
  explicit Rules(std::string_view table)
      : isCard_(table == Tabelle::Benutzer),
        forms_(isCard_ ? std::span<const RowColumn>(kCard) : std::span<const RowColumn>(kPiece)) {}

  int count() const { return static_cast<int>(forms_.size()); }
  Form form(int column) const { return forms_[column].form; }
  std::size_t boxLength(int column) const { return forms_[column].boxLength; }
  std::string_view name(int column) const {
    const auto tables = logbookTables();
    const auto wanted = isCard_ ? Tabelle::Benutzer : Tabelle::Ausrüstung;
    const auto table = std::find_if(tables.begin(), tables.end(),
                                    [&](const Table& each) { return each.name == wanted; });
    return table->columns[column].name;
  }
  int notes() const { return isCard_ ? int{Karte::Weitere} : int{Stück::Info}; }

 private:
  bool isCard_;
  std::span<const RowColumn> forms_;
};

/// "12.5 USD".
bool isPrice(std::string_view text) {
  constexpr std::size_t kCurrency = 4;
  if (text.size() <= kCurrency || text[text.size() - kCurrency] != ' ') return false;
  const auto letters = text.substr(text.size() - kCurrency + 1);
  const auto isCapital = [](char letter) { return letter >= 'A' && letter <= 'Z'; };
  return readFileNumber(text.substr(0, text.size() - kCurrency)).has_value() &&
         std::all_of(letters.begin(), letters.end(), isCapital);
}

Cell elementOf(Form form, const std::string& text) {
  switch (form) {
    case Form::Text:
      return xmlCharactersOf(text);
    case Form::Date:
      if (const auto date = readDotted(text)) return isoText(*date) + "T00:00:00";
      return {};
    case Form::Price:
      return isPrice(text) ? Cell(text) : Cell();
    default:
      return {};
  }
}

std::string textOf(Form form, const Cell& element) {
  if (!element) return {};
  if (form != Form::Date) return collapsed(*element);
  const auto moment = readMoment(*element);
  return moment ? dottedText(moment->date) : collapsed(*element);
}

/// A column that is told in a line of the notes; nothing for a line that is no such.
struct Told {
  int column;
  Cell text;
};

std::optional<Told> readLine(const Rules& rules, std::string_view line) {
  for (int column = 0; column < rules.count(); ++column) {
    const auto name = rules.name(column);
    if (!line.starts_with(name)) continue;
    const auto rest = line.substr(name.size());
    if (rest == kNull) return Told{column, {}};
    if (rest == kEmpty) return Told{column, ""};
    if (rest.starts_with(kBase64)) return Told{column, fromBase64(rest.substr(kBase64.size()))};
    if (column != rules.notes() && rest.starts_with(kPlain))
      return Told{column, std::string(rest.substr(kPlain.size()))};
  }
  return {};
}

std::string lineOf(std::string_view name, const Cell& text, bool mayBePlain) {
  std::string line(name);
  if (!text || text->empty()) return line.append(text ? kEmpty : kNull);
  if (mayBePlain && canStandInXml(*text) && collapsed(*text) == *text)
    return line.append(kPlain).append(*text);
  return line.append(kBase64).append(toBase64(*text));
}

std::vector<std::string> notesOf(const Cell& text) {
  std::vector<std::string> notes;
  if (!text || text->empty()) return notes;
  for (const auto line : linesOf(*text)) notes.push_back(xmlCharactersOf(line));
  return notes;
}

bool anyIsToldBy(const Rules& rules, const std::vector<std::string>& notes) {
  return std::any_of(notes.begin(), notes.end(), [&](const std::string& line) {
    return readLine(rules, collapsed(line)).has_value();
  });
}

}  // namespace

/// Whatever a reader would not get back as it is goes into a line of its own.
StandardRow toStandard(std::string_view table, const TextRow& row) {
  const Rules rules(table);
  StandardRow standard;
  for (int column = 0; column < rules.count(); ++column)
    standard.elements.push_back(row[column] ? elementOf(rules.form(column), *row[column]) : Cell());
  standard.notes = notesOf(row[rules.notes()]);
  const auto restored = fromStandard(table, standard);
  const bool misread = anyIsToldBy(rules, standard.notes);
  for (int column = 0; column < rules.count(); ++column)
    if (misread || restored[column] != row[column])
      standard.notes.push_back(lineOf(rules.name(column), row[column], column != rules.notes()));
  return standard;
}

TextRow fromStandard(std::string_view table, const StandardRow& standard) {
  const Rules rules(table);
  TextRow row;
  for (int column = 0; column < rules.count(); ++column)
    row.emplace_back(textOf(rules.form(column), standard.elements[column]));
  std::vector<Told> told;
  std::string notes;
  for (const auto& line : standard.notes) {
    auto text = collapsed(line);
    if (auto column = readLine(rules, text))
      told.push_back(std::move(*column));
    else
      notes += (notes.empty() ? "" : "\n") + text;
  }
  row[rules.notes()] = std::move(notes);
  for (auto& [column, text] : told) row[column] = std::move(text);
  return row;
}

std::vector<std::string> fitRow(std::string_view table, TextRow& row) {
  const Rules rules(table);
  std::vector<std::string> cuts;
  for (int column = 0; column < rules.count(); ++column) {
    const auto length = rules.boxLength(column);
    if (length == 0 || !row[column] || characters(*row[column]) <= length) continue;
    auto cut = firstCharacters(*row[column], length);
    cuts.push_back(std::string(rules.name(column)) + ": '" + *row[column] + "' was cut to '" + cut +
                   "'.");
    row[column] = std::move(cut);
  }
  return cuts;
}

}  // namespace nautrel::exchange
