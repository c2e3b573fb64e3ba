// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dates.h"

#include <charconv>
#include <cstdio>

#include "exchange/plain_text.h"

namespace nautrel::exchange {
namespace {

constexpr int kFirstYear = 1000;
constexpr int kLastYear = 9999;
constexpr int kMinutesOfHour = 60;
constexpr int kHoursOfDay = 24;

Date dateOf(int year, int month, int day) {
  return std::chrono::year(year) / month / day;
}

bool isYear(int year) {
  return year >= kFirstYear && year <= kLastYear;
}

/// Takes a number off the front.
std::optional<int> takeNumber(std::string_view& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || text.front() == '-') return {};
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

bool takeSign(std::string_view& text, std::string_view signs) {
  if (text.empty() || signs.find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

/// The digits of a time count whatever zone they are in.
bool isZone(std::string_view text) {
  if (text == "Z" || text == "z") return true;
  return takeSign(text, "+-") && text.size() > 1 &&
         text.find_first_not_of("0123456789:") == std::string_view::npos;
}

std::string formatted(const char* form, int first, int second, int third) {
  char text[40];
  const int length = std::snprintf(text, sizeof text, form, first, second, third);
  return std::string(text, static_cast<std::size_t>(length));
}

int dayOf(Date date) {
  return static_cast<int>(static_cast<unsigned>(date.day()));
}

int monthOf(Date date) {
  return static_cast<int>(static_cast<unsigned>(date.month()));
}

int yearOf(Date date) {
  return static_cast<int>(date.year());
}

}  // namespace

std::optional<int> readWhole(std::string_view text) {
  text = trimmed(text);
  const auto number = takeNumber(text);
  return text.empty() ? number : std::nullopt;
}

std::optional<Date> nearestDate(std::string_view day, std::string_view month,
                                std::string_view year) {
  constexpr int kLongestMonth = 31;
  const auto d = readWhole(day);
  const auto m = readWhole(month);
  const auto y = readWhole(year);
  if (!d || !m || !y || !isYear(*y) || *d < 1 || *d > kLongestMonth) return {};
  auto date = dateOf(*y, *m, *d);
  if (!date.month().ok()) return {};
  if (!date.ok()) date = date.year() / date.month() / std::chrono::last;
  return date;
}

std::optional<Date> nearestDate(const DiveRecord& dive) {
  return nearestDate(dive.text(Feld::Tag), dive.text(Feld::Monat), dive.text(Feld::Jahr));
}

bool hasRealDate(const DiveRecord& dive) {
  const auto date = nearestDate(dive);
  return date && dayOf(*date) == readWhole(dive.text(Feld::Tag));
}

std::string isoText(Date date) {
  return formatted("%04d-%02d-%02d", yearOf(date), monthOf(date), dayOf(date));
}

std::string momentText(const std::string& isoDate, int minuteOfDay) {
  return isoDate + formatted("T%02d:%02d:%02d", minuteOfDay / kMinutesOfHour,
                             minuteOfDay % kMinutesOfHour, 0);
}

std::optional<std::string> isoDate(const DiveRecord& dive) {
  const auto date = nearestDate(dive);
  return date ? std::optional(isoText(*date)) : std::nullopt;
}

std::optional<int> readClock(std::string_view text) {
  text = trimmed(text);
  auto hour = takeNumber(text);
  if (!hour || !takeSign(text, ":.")) return {};
  const auto minute = takeNumber(text);
  if (takeSign(text, ":")) takeNumber(text);
  const auto half = lowerAscii(trimmed(text).substr(0, 2));
  if (half == "pm" && *hour < kHoursOfDay / 2) *hour += kHoursOfDay / 2;
  if (half == "am" && *hour == kHoursOfDay / 2) *hour = 0;
  if (!minute || *hour >= kHoursOfDay || *minute >= kMinutesOfHour) return {};
  return *hour * kMinutesOfHour + *minute;
}

std::optional<int> readTimeOfDay(std::string_view text) {
  if (const auto clock = readClock(text)) return clock;
  text = trimmed(text);
  const auto hour = takeNumber(text);
  takeSign(text, ":");
  const bool alone = text.empty() || isZone(text);
  return hour && alone && *hour < kHoursOfDay ? std::optional(*hour * kMinutesOfHour)
                                              : std::nullopt;
}

std::optional<Moment> readMoment(std::string_view text) {
  text = trimmed(text);
  const auto year = takeNumber(text);
  if (!year || !isYear(*year) || !takeSign(text, "-/.")) return {};
  const auto month = takeNumber(text);
  if (!month || !takeSign(text, "-/.")) return {};
  const auto day = takeNumber(text);
  if (!day || !(text.empty() || isZone(text) || takeSign(text, "Tt "))) return {};
  const auto date = dateOf(*year, *month, *day);
  if (!date.ok()) return {};
  return Moment{date, readTimeOfDay(text)};
}

void setDate(DiveRecord& dive, Date date) {
  const auto iso = isoText(date);
  dive.texts[Feld::Jahr] = iso.substr(0, 4);
  dive.texts[Feld::Monat] = iso.substr(5, 2);
  dive.texts[Feld::Tag] = iso.substr(8, 2);
}

std::string dottedText(Date date) {
  return formatted("%02d.%02d.%04d", dayOf(date), monthOf(date), yearOf(date));
}

std::optional<Date> readDotted(std::string_view text) {
  const auto day = takeNumber(text);
  if (!day || !takeSign(text, ".")) return {};
  const auto month = takeNumber(text);
  if (!month || !takeSign(text, ".")) return {};
  const auto year = takeNumber(text);
  if (!year || !isYear(*year) || !text.empty()) return {};
  const auto date = dateOf(*year, *month, *day);
  return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace nautrel::exchange
