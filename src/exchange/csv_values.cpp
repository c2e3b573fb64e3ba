// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/csv_values.h"

#include <algorithm>
#include <cmath>

#include "exchange/plain_text.h"
#include "exchange/units.h"
#include "platform/text.h"

namespace nautrel::exchange {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kSigns = ".,";

/// "3,000": one sign that may group the digits as well as be the decimal one.
bool isOpen(std::string_view number) {
  constexpr std::size_t kGroup = 3;
  if (number.starts_with('-') || number.starts_with('+')) number.remove_prefix(1);
  const auto sign = number.find_first_of(kSigns);
  return sign != std::string_view::npos && number.size() == sign + 1 + kGroup && sign > 0 &&
         sign <= kGroup && number[0] != '0' &&
         number.find_first_of(kSigns, sign + 1) == std::string_view::npos;
}

/// The decimal sign of a number that has one or tells which it is not; 0 for any other.
char signIn(std::string_view number) {
  const auto last = number.find_last_of(kSigns);
  if (last == std::string_view::npos || isOpen(number)) return 0;
  const char sign = number[last];
  if (std::count(number.begin(), number.end(), sign) == 1) return sign;
  return sign == '.' ? ',' : '.';
}

/// Without the signs that group digits, with a point for the decimal one.
std::string withPoint(std::string_view number, char decimal = 0) {
  const auto last = number.find_last_of(kSigns);
  const bool groups = last != std::string_view::npos &&
                      (std::count(number.begin(), number.end(), number[last]) > 1 ||
                       (decimal != 0 && isOpen(number) && number[last] != decimal));
  std::string plain;
  for (std::size_t at = 0; at < number.size(); ++at) {
    if (kSigns.find(number[at]) == std::string_view::npos)
      plain += number[at];
    else if (at == last && !groups)
      plain += '.';
  }
  return plain;
}

/// Takes digits with their signs off the front.
std::string_view takeNumberText(std::string_view& text) {
  const std::size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  auto end = text.find_first_not_of("0123456789.,", sign);
  if (end == std::string_view::npos) end = text.size();
  const auto number = text.substr(0, end);
  text.remove_prefix(end);
  return number.find_first_of(kDigits) == std::string_view::npos ? std::string_view() : number;
}

std::string_view takeWord(std::string_view& text) {
  text = trimmed(text);
  const auto isEnd = [](char letter) {
    return std::string_view(" \t()[];:.,/-0123456789").find(letter) != std::string_view::npos;
  };
  const auto* end = std::find_if(text.begin(), text.end(), isEnd);
  const auto word = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(word.size());
  return word;
}

CsvUnit takeUnit(std::string_view& text) {
  text = trimmed(text);
  if (lowerAscii(text.substr(0, 5)) == "cu ft") return CsvUnit::CubicFoot;
  return csvUnit(takeWord(text));
}

double secondsOfUnit(CsvUnit unit) {
  if (unit == CsvUnit::Second) return 1;
  return unit == CsvUnit::Hour ? 60 * kSecondsOfMinute : kSecondsOfMinute;
}

/// 1 for a text that begins like January, in English or German.
int monthNamed(std::string_view word) {
  constexpr std::string_view kMonths[] = {"jan", "feb", "mar", "apr", "may", "jun",
                                          "jul", "aug", "sep", "oct", "nov", "dec"};
  constexpr std::pair<std::string_view, int> kOthers[] = {
      {"mär", 3}, {"mrz", 3}, {"mai", 5}, {"okt", 10}, {"dez", 12}};
  const auto name = lowerCase(word);
  for (int month = 0; month < 12; ++month)
    if (name.starts_with(kMonths[month])) return month + 1;
  for (const auto& [other, month] : kOthers)
    if (name.starts_with(other)) return month;
  return 0;
}

int fullYear(std::string_view digits, int number) {
  constexpr int kCenturyBegins = 50;
  if (digits.size() > 2) return number;
  return number + (number < kCenturyBegins ? 2000 : 1900);
}

/// The numbers and month names at the front of a date, the separators between them dropped.
struct DateParts {
  std::vector<std::string_view> numbers;
  int month = 0;
};

DateParts takeDateParts(std::string_view& text) {
  DateParts parts;
  while (parts.numbers.size() + (parts.month != 0 ? 1 : 0) < 3) {
    const auto start = text.find_first_not_of(" .-/,");
    if (start == std::string_view::npos) break;
    text.remove_prefix(start);
    auto end = text.find_first_not_of(kDigits);
    if (end == std::string_view::npos) end = text.size();
    if (end > 0) {
      parts.numbers.push_back(text.substr(0, end));
      text.remove_prefix(end);
      continue;
    }
    const auto word = takeWord(text);
    if (word.empty()) break;
    // A day of the week may stand before the date.
    if (const int month = monthNamed(word); month != 0) parts.month = month;
  }
  return parts;
}

}  // namespace

void DecimalSign::look(std::string_view cell) {
  auto text = trimmed(cell);
  const char sign = signIn(takeNumberText(text));
  point_ = point_ || sign == '.';
  comma_ = comma_ || sign == ',';
}

char DecimalSign::known() const {
  if (point_ == comma_) return 0;
  return point_ ? '.' : ',';
}

char DecimalSign::doubtful(std::string_view cell) const {
  auto text = trimmed(cell);
  const auto number = takeNumberText(text);
  return known() == 0 && isOpen(number) ? number[number.find_first_of(kSigns)] : '\0';
}

std::optional<Measure> readMeasure(std::string_view cell, const DecimalSign& sign) {
  auto text = trimmed(cell);
  const auto digits = takeNumberText(text);
  const auto number = readFileNumber(withPoint(digits, sign.known()));
  if (digits.empty() || !number) return {};
  const bool hasUnit = !trimmed(text).empty();
  const auto unit = takeUnit(text);
  if (hasUnit && unit == CsvUnit::None) return {};
  return Measure{*number, unit};
}

std::optional<RawDuration> readDuration(std::string_view cell) {
  auto text = trimmed(cell);
  RawDuration duration;
  for (double* part : {&duration.first, &duration.second, &duration.third}) {
    const auto number = readFileNumber(withPoint(takeNumberText(text)));
    if (!number) return {};
    *part = *number;
    ++duration.parts;
    if (!text.starts_with(':')) break;
    text.remove_prefix(1);
  }
  duration.unit = takeUnit(text);
  if (duration.parts == 1 && duration.unit == CsvUnit::Hour && !trimmed(text).empty()) {
    const auto minutes = readFileNumber(withPoint(takeNumberText(text = trimmed(text))));
    duration.first = duration.first * 60 + minutes.value_or(0);
    duration.unit = CsvUnit::Minute;
  }
  return duration;
}

double secondsOf(const RawDuration& duration, CsvUnit headUnit, DurationForm form) {
  const double minute = kSecondsOfMinute;
  if (duration.parts == 3) return (duration.first * 60 + duration.second) * minute + duration.third;
  if (duration.parts == 1)
    return duration.first *
           secondsOfUnit(duration.unit != CsvUnit::None ? duration.unit : headUnit);
  const double smaller = duration.first * minute + duration.second;
  return form == DurationForm::HoursMinutes ? smaller * minute : smaller;
}

std::optional<RawDate> readDate(std::string_view cell) {
  auto text = trimmed(cell);
  const auto parts = takeDateParts(text);
  std::vector<int> numbers;
  for (const auto digits : parts.numbers) numbers.push_back(readWhole(digits).value_or(-1));
  if (std::count(numbers.begin(), numbers.end(), -1) > 0) return {};
  text = text.starts_with('T') || text.starts_with(',') ? text.substr(1) : text;
  RawDate date{.minuteOfDay = readTimeOfDay(text)};
  constexpr std::size_t kYearDigits = 4;
  if (parts.month != 0 && numbers.size() == 2) {
    const bool yearFirst = parts.numbers[0].size() == kYearDigits;
    date.year = fullYear(parts.numbers[yearFirst ? 0 : 1], numbers[yearFirst ? 0 : 1]);
    date.first = parts.month;
    date.second = numbers[yearFirst ? 1 : 0];
    date.orderKnown = true;
    return date;
  }
  if (parts.month != 0 || numbers.size() != 3) return {};
  date.orderKnown = parts.numbers[0].size() == kYearDigits;
  if (date.orderKnown) {
    date.year = numbers[0];
    date.first = numbers[1];
    date.second = numbers[2];
  } else {
    date.year = fullYear(parts.numbers[2], numbers[2]);
    date.first = numbers[0];
    date.second = numbers[1];
  }
  return date;
}

std::optional<Moment> momentOf(const RawDate& date, DateOrder order) {
  constexpr int kFirstYear = 1000;
  constexpr int kLastYear = 9999;
  const bool monthFirst = date.orderKnown || order == DateOrder::MonthFirst;
  const int month = monthFirst ? date.first : date.second;
  const int day = monthFirst ? date.second : date.first;
  const Date found = std::chrono::year(date.year) / month / day;
  if (!found.ok() || date.year < kFirstYear || date.year > kLastYear) return {};
  return Moment{found, date.minuteOfDay};
}

}  // namespace nautrel::exchange
