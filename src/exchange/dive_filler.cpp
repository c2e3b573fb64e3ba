// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dive_filler.h"

#include <algorithm>
#include <cmath>

#include "exchange/plain_text.h"
#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

/// Every text column is written, as the entry windows do it.
void clearTexts(DiveRecord& dive) {
  for (int column = 0; column < kDiveColumns; ++column)
    if (!diveColumn(column).isFlag) dive.texts[column] = "";
}

std::string withSign(std::string number, const Locale& locale) {
  if (const auto point = number.find('.'); point != std::string::npos)
    number.replace(point, 1, locale.decimal);
  return number;
}

/// Below that limit with a decimal, from there on whole.
std::string fitted(double value, double limit) {
  const Locale point;
  const auto withDecimal = formatNumber(value, "0.0", point);
  if (*readFileNumber(withDecimal) >= limit) return formatNumber(value, "0", point);
  return withDecimal.ends_with(".0") ? withDecimal.substr(0, withDecimal.size() - 2) : withDecimal;
}

double wholeFrom(int column) {
  switch (column) {
    case Feld::Tiefe:
      return 100;
    case Feld::Liter:
    case Feld::Blei:
      return 10;
    default:
      return 0;
  }
}

}  // namespace

DiveFiller::DiveFiller(SourceDive& dive, const Locale& locale) : dive_(dive), locale_(locale) {
  clearTexts(dive_.record);
}

void DiveFiller::change(int column, std::string_view from, std::string_view to, std::string why) {
  dive_.changes.push_back(
      {std::string(diveColumn(column).label), std::string(from), std::string(to), std::move(why)});
}

void DiveFiller::leaveOut(std::string why) {
  if (dive_.leftOutBecause.empty()) dive_.leftOutBecause = std::move(why);
}

/// A rounding by more than `unnoticed` is told.
void DiveFiller::number(int column, std::string_view told, double exact, double unnoticed) {
  if (exact < 0) return notTaken(column, told, "is negative");
  const auto digits = fitted(exact, wholeFrom(column));
  if (digits == "0") return notTaken(column, told, "is 0 when it is rounded");
  auto text = withSign(digits, locale_);
  if (characters(text) > static_cast<std::size_t>(diveColumn(column).boxLength))
    return notTaken(column, told, "too large for its box; it stands in the comments");
  if (std::abs(*readFileNumber(digits) - exact) > unnoticed)
    change(column, told, text, "rounded to fit its box");
  dive_.record.texts[column] = std::move(text);
}

void DiveFiller::depth(std::string_view told, double metres) {
  constexpr double kNoticed = 0.0501;
  if (metres < 0) return leaveOut("the depth " + shown(told) + " is negative");
  const double feet = metres / kMetresOfFoot;
  if (feet >= 9999.5) return leaveOut("the depth " + shown(told) + " is none");
  if (feet > 0) number(Feld::Tiefe, told, feet, kNoticed);
}

void DiveFiller::duration(std::string_view told, double seconds) {
  constexpr double kNoticed = 0.0001;
  if (seconds < 0) return leaveOut("the dive time " + shown(told) + " is negative");
  const double minutes = seconds / kSecondsOfMinute;
  if (minutes >= 999.5) return leaveOut("the dive time " + shown(told) + " is none");
  if (minutes <= 0) return;
  const auto whole = std::max(1.0, std::round(minutes));
  dive_.record.texts[Feld::Zeit] = fixedText(whole, 0);
  if (std::abs(whole - minutes) > kNoticed)
    change(Feld::Zeit, told, *dive_.record.texts[Feld::Zeit], "rounded to whole minutes");
}

void DiveFiller::tankSize(std::string_view told, double cubicMetres) {
  constexpr double kNoticed = 0.5001;
  if (cubicMetres != 0) number(Feld::Liter, told, cubicMetres / kTankOfCubicFoot, kNoticed);
}

void DiveFiller::pressure(int column, std::string_view told, double pascals) {
  constexpr double kNoticed = 0.5001;
  if (pascals != 0) number(column, told, pascals / kPascalsOfPsi, kNoticed);
}

void DiveFiller::weight(std::string_view told, double kilograms) {
  constexpr double kNoticed = 0.5001;
  if (kilograms != 0) number(Feld::Blei, told, kilograms / kKilogramsOfPound, kNoticed);
}

void DiveFiller::altitude(std::string_view told, double metres) {
  constexpr double kHighest = 10000;
  constexpr std::string_view kUnit = "ft";
  if (std::abs(metres) > kHighest) return noNumber(Feld::Höhe, told);
  auto feet = fixedText(metres / kMetresOfFoot, 0);
  // Where the unit finds no room: a bare number is in feet as well.
  const auto box = static_cast<std::size_t>(diveColumn(Feld::Höhe).boxLength);
  if (feet.size() + kUnit.size() <= box) feet += kUnit;
  dive_.record.texts[Feld::Höhe] = std::move(feet);
}

void DiveFiller::date(std::string_view told, const std::optional<Moment>& moment) {
  if (!moment) {
    unreadable_[Feld::Jahr] = told;
    return;
  }
  setDate(dive_.record, moment->date);
  if (moment->minuteOfDay) dive_.minuteOfDay = moment->minuteOfDay;
}

void DiveFiller::text(int column, std::string_view text) {
  const auto length = static_cast<std::size_t>(diveColumn(column).boxLength);
  auto whole = length == 0 ? std::string(text) : onOneLine(trimmed(text));
  if (length == 0 || characters(whole) <= length) {
    dive_.record.texts[column] = std::move(whole);
    return;
  }
  auto cut = firstCharacters(whole, length);
  change(column, whole, cut, "cut to fit its box; the whole text stands in the comments");
  line(std::string(diveColumn(column).label) + ": " + whole);
  dive_.record.texts[column] = std::move(cut);
}

void DiveFiller::visibility(double metres) {
  constexpr double kGood = 15;
  constexpr double kPoor = 5;
  if (metres <= 0) return;
  flag(metres >= kGood ? Feld::Sichtg : metres < kPoor ? Feld::Sichts : Feld::Sichtm);
}

void DiveFiller::notTaken(int column, std::string_view told, std::string why) {
  unreadable_[column] = told;
  change(column, told, "", std::move(why));
  line(std::string(diveColumn(column).label) + ": " + std::string(told));
}

void DiveFiller::finish() {
  auto& record = dive_.record;
  auto& comments = *record.texts[Feld::Lang];
  for (const auto& line : lines_) comments += (comments.empty() ? "" : "\n") + line;
  require(Feld::Jahr, "date");
  require(Feld::Zeit, "dive time");
  require(Feld::Tiefe, "depth");
}

void DiveFiller::require(int column, const std::string& name) {
  if (!dive_.record.text(column).empty()) return;
  const auto told = unreadable_.find(column);
  leaveOut(told == unreadable_.end() ? "it has no " + name
                                     : "its " + name + " '" + shown(told->second) + "' is none");
}

}  // namespace nautrel::exchange
