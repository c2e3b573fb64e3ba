// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/preview_texts.h"

#include <array>
#include <cctype>

#include "companion/Companion.h"
#include "exchange/dates.h"
#include "exchange/import_report.h"
#include "exchange/plain_text.h"

namespace nautrel::exchange {
namespace {

constexpr std::array<const char*, 12> kMonths{"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};

/// The numbers in a cell, in its order.
std::vector<int> numbersIn(const std::string& cell) {
  std::vector<int> numbers;
  bool inside = false;
  for (const char sign : cell) {
    const bool digit = std::isdigit(static_cast<unsigned char>(sign)) != 0;
    if (digit && !inside) numbers.push_back(0);
    if (digit && numbers.back() < 100'000) numbers.back() = numbers.back() * 10 + (sign - '0');
    inside = digit;
  }
  return numbers;
}

/// ": 3 April", where the cell tells such a day.
std::string asDay(const std::vector<int>& numbers, std::size_t day, std::size_t month) {
  if (numbers.size() < 2 || numbers[month] < 1 || numbers[month] > 12) return {};
  return ": " + std::to_string(numbers[day]) + " " +
         kMonths[static_cast<std::size_t>(numbers[month]) - 1];
}

std::string asTime(const std::vector<int>& numbers, const char* first, const char* second) {
  if (numbers.size() != 2) return {};
  return ": " + std::to_string(numbers[0]) + " " + first + " " + std::to_string(numbers[1]) + " " +
         second;
}

std::string dateOf(const DiveRecord& record, const Locale& locale) {
  const auto day = readWhole(record.text(Feld::Tag));
  const auto month = readWhole(record.text(Feld::Monat));
  const auto year = readWhole(record.text(Feld::Jahr));
  if (hasRealDate(record) && day && month && year) return dateText({*year, *month, *day}, locale);
  std::string text;
  for (const int part : {Feld::Tag, Feld::Monat, Feld::Jahr})
    if (!record.text(part).empty())
      text += (text.empty() ? "" : ".") + std::string(record.text(part));
  return text;
}

std::string placeOf(const DiveRecord& record) {
  std::string text;
  for (const int part : {Feld::Platz, Feld::Ort, Feld::Land})
    if (!record.text(part).empty())
      text += (text.empty() ? "" : ", ") + std::string(record.text(part));
  return text;
}

std::string withUnit(std::string_view value, const char* unit) {
  return value.empty() ? std::string() : std::string(value) + " " + unit;
}

std::string fateOf(const PlannedDive& dive) {
  if (dive.fate == Fate::Duplicate) return "duplicate of dive " + *dive.duplicateOf;
  if (dive.fate == Fate::LeftOut) return "left out: " + dive.why;
  auto text = (dive.duplicateOf ? "taken all the same, dive " : "new, dive ") +
              std::string(dive.source.record.text(Feld::Nr));
  for (const auto& change : dive.source.changes) text += "; " + changeText(change);
  return text;
}

}  // namespace

QuestionWords wordsOf(const Question& question) {
  const auto cell = "'" + shown(question.example) + "' in '" + shown(question.column) + "': ";
  const auto numbers = numbersIn(question.example);
  switch (question.about) {
    case Question::About::Dates:
      return {cell + "what comes first?", "the &day" + asDay(numbers, 0, 1),
              "the &month" + asDay(numbers, 1, 0)};
    case Question::About::Durations:
      return {cell + "what is it?", "mi&nutes and seconds" + asTime(numbers, "min", "s"),
              "&hours and minutes" + asTime(numbers, "h", "min")};
    case Question::About::Units:
      return {cell + "in which units?", "met&ric (m, bar, kg, l)",
              "&imperial (ft, psi, lb, cu ft)"};
  }
  return {};
}

std::vector<std::string> cellsOf(const PlannedDive& dive, const Locale& locale) {
  const auto& record = dive.source.record;
  return {"",
          std::to_string(dive.source.line),
          dateOf(record, locale),
          placeOf(record),
          withUnit(record.text(Feld::Tiefe), "ft"),
          withUnit(record.text(Feld::Zeit), "min"),
          fateOf(dive)};
}

std::string plannedText(const ImportPlan& plan) {
  const auto counts = plan.counts();
  auto text = counted(static_cast<int>(plan.dives().size()), "dive") +
              " in the file: " + std::to_string(counts.taken) + " to be taken over";
  if (counts.changed > 0) text += " (" + std::to_string(counts.changed) + " of them changed)";
  if (counts.duplicates > 0)
    text += ", " + std::to_string(counts.duplicates) + " in the logbook already";
  if (counts.leftOut > 0) text += ", " + std::to_string(counts.leftOut) + " left out";
  return text + ".";
}

std::string takenText(const ImportPlan& plan) {
  return counted(plan.counts().taken, "dive") + " taken over" +
         (plan.takesCard() ? ", with the diver's card" : "") +
         (plan.takesEquipment() > 0
              ? ", with " + counted(plan.takesEquipment(), "piece") + " of equipment"
              : "") +
         ".";
}

}  // namespace nautrel::exchange
