// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/standard_dive.h"

#include <cmath>

#include "exchange/dates.h"
#include "exchange/plain_text.h"
#include "exchange/units.h"
#include "exchange/xml_text.h"

namespace nautrel::exchange {
namespace {

enum class Meaning { Text, Lines, Number, Date, List };

Meaning meaningOf(int column) {
  switch (column) {
    case Feld::Nr:
    case Feld::Zeit:
    case Feld::Tiefe:
    case Feld::Liter:
    case Feld::Bars:
    case Feld::Bare:
    case Feld::Höhe:
    case Feld::Blei:
      return Meaning::Number;
    case Feld::Tag:
      return Meaning::Date;
    case Feld::Lang:
      return Meaning::Lines;
    case Feld::Buddy:
      return Meaning::List;
    default:
      return Meaning::Text;
  }
}

Cell scaled(const DiveRecord& dive, int column, const Locale& locale, double factor, int decimals) {
  const auto text = dive.text(column);
  if (!faultOfNumber(text, locale).empty()) return {};
  return fixedText(*tryNumber(text, locale) * factor, decimals);
}

/// A bare number is in feet, as is everything else here.
Cell altitude(std::string_view text, const Locale& locale) {
  text = trimmed(text);
  double factor = kMetresOfFoot;
  const auto takeUnit = [&](std::string_view unit, double metres) {
    if (!lowerAscii(text).ends_with(unit)) return false;
    text = trimmed(text.substr(0, text.size() - unit.size()));
    factor = metres;
    return true;
  };
  takeUnit("ft", kMetresOfFoot) || takeUnit("feet", kMetresOfFoot) || takeUnit("m", 1);
  const auto number = tryNumber(text, locale);
  return number ? Cell(fixedText(*number * factor, 4)) : Cell();
}

Cell oneOf(const DiveRecord& dive, int first, const char* firstText, int second,
           const char* secondText) {
  if (dive.flags[first]) return firstText;
  if (dive.flags[second]) return secondText;
  return {};
}

Cell notEmpty(std::string text) {
  return text.empty() ? Cell() : Cell(std::move(text));
}

std::string joinedBuddies(std::string_view list) {
  std::string joined;
  for (const auto& buddy : buddiesOf(list)) joined += (joined.empty() ? "" : ", ") + buddy;
  return joined;
}

/// Empty lines at both ends are but layout.
std::string joinedLines(std::string_view text) {
  std::string joined;
  for (const auto line : linesOf(text)) joined += collapsed(line) + "\n";
  return std::string(trimmed(joined));
}

bool sameNumber(std::string_view fromFile, std::string_view exact) {
  const auto one = readFileNumber(fromFile);
  const auto other = readFileNumber(exact);
  if (!one || !other) return false;
  if (*one == *other) return true;
  // Programs that keep centimetres round; one that keeps less has another value.
  constexpr int kKeptByOthers = 2;
  const int decimals = decimalsOf(fromFile);
  return decimals >= kKeptByOthers && fixedText(*other, decimals) == fixedText(*one, decimals);
}

bool sameDate(std::string_view fromFile, std::string_view exact) {
  const auto one = readMoment(fromFile);
  const auto other = readMoment(exact);
  return one && other && one->date == other->date;
}

}  // namespace

std::vector<std::string> buddiesOf(std::string_view list) {
  std::vector<std::string> buddies;
  for (const auto part : splitAt(list, ", "))
    if (auto buddy = collapsed(part); !buddy.empty()) buddies.push_back(std::move(buddy));
  return buddies;
}

std::string_view faultOfNumber(std::string_view text, const Locale& locale) {
  const auto number = tryNumber(text, locale);
  if (!number || !std::isfinite(*number * kPascalsOfPsi)) return "is no number";
  return *number < 0 ? "is negative" : "";
}

const std::vector<int>& columnsToldBy(int column) {
  using namespace Feld;
  static const std::vector<int> none;
  static const auto table = [] {
    std::array<std::vector<int>, kDiveColumns> told;
    for (const int single : {Nr, Land, Ort, Platz, Zeit, Tiefe, Buddy, Lang, Liter, Bars, Bare,
                             Anzug, Höhe, Blei, Grafik})
      told[single] = {single};
    told[Tag] = {Tag, Monat, Jahr};
    told[Salz] = {Salz, Süß};
    told[Ufer] = {Ufer, Boot};
    told[Alu] = {Alu, Stahl};
    return told;
  }();
  return table[static_cast<std::size_t>(column)];
}

StandardDive toStandard(const DiveRecord& dive, const Locale& locale) {
  using namespace Feld;
  StandardDive told;
  const auto number = readWhole(dive.text(Nr));
  if (number && *number > 0) told[Nr] = std::to_string(*number);
  for (const int column : {Land, Ort, Platz, Anzug, Grafik})
    told[column] = notEmpty(xmlCharactersOf(dive.text(column)));
  told[Tag] = isoDate(dive).value_or(kUnknownDate);
  told[Zeit] = scaled(dive, Zeit, locale, kSecondsOfMinute, 4);
  told[Tiefe] = scaled(dive, Tiefe, locale, kMetresOfFoot, 4);
  told[Buddy] = notEmpty(joinedBuddies(xmlCharactersOf(dive.text(Buddy))));
  told[Lang] = notEmpty(xmlCharactersOf(dive.text(Lang)));
  told[Salz] = oneOf(dive, Salz, "ocean-sea", Süß, "lake-quarry");
  told[Ufer] = oneOf(dive, Ufer, "beach-shore", Boot, "small-boat");
  told[Alu] = oneOf(dive, Alu, "aluminium", Stahl, "steel");
  told[Liter] = scaled(dive, Liter, locale, kTankOfCubicFoot, 7);
  told[Bars] = scaled(dive, Bars, locale, kPascalsOfPsi, 0);
  told[Bare] = scaled(dive, Bare, locale, kPascalsOfPsi, 0);
  told[Höhe] = altitude(dive.text(Höhe), locale);
  told[Blei] = scaled(dive, Blei, locale, kKilogramsOfPound, 4);
  return told;
}

bool saysNothing(int column, const Cell& text) {
  if (!text || trimmed(*text).empty()) return true;
  const bool zeroIsUnknown = meaningOf(column) == Meaning::Number && column != Feld::Höhe;
  return zeroIsUnknown && readFileNumber(*text) == 0.0;
}

bool meansTheSame(int column, const Cell& fromFile, const Cell& exact) {
  if (fromFile == exact) return true;
  if (saysNothing(column, fromFile) || saysNothing(column, exact))
    return saysNothing(column, fromFile) == saysNothing(column, exact);
  switch (meaningOf(column)) {
    case Meaning::Number:
      return sameNumber(*fromFile, *exact);
    case Meaning::Date:
      return sameDate(*fromFile, *exact);
    case Meaning::Lines:
      return joinedLines(*fromFile) == joinedLines(*exact);
    case Meaning::List:
      return joinedBuddies(*fromFile) == joinedBuddies(*exact);
    case Meaning::Text:
      break;
  }
  return collapsed(*fromFile) == collapsed(*exact);
}

}  // namespace nautrel::exchange
