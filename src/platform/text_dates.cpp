// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text.h"

#include <algorithm>
#include <chrono>
#include <string>

namespace nautrel {
namespace {

std::string padded(int number, std::size_t digits) {
  auto text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

bool isHalfOfDay(std::string_view form) {
  return form.size() >= 2 && (form[0] == 'A' || form[0] == 'a') &&
         (form[1] == 'P' || form[1] == 'p');
}

bool hasHalvesOfDay(std::string_view form) {
  for (std::size_t at = 0; at < form.size(); ++at)
    if (isHalfOfDay(form.substr(at))) return true;
  return false;
}

int hourOnDial(int hour) {
  return hour % 12 == 0 ? 12 : hour % 12;
}

int dayOfWeek(const DateTime& moment) {
  const std::chrono::year_month_day date{std::chrono::year(moment.year),
                                         std::chrono::month(static_cast<unsigned>(moment.month)),
                                         std::chrono::day(static_cast<unsigned>(moment.day))};
  return static_cast<int>(std::chrono::weekday(std::chrono::sys_days(date)).c_encoding());
}

/// Three letters or more are a name, its index counted from 0; fewer are the number.
std::string nameOr(int number, std::size_t length, int index, const std::vector<std::string>& brief,
                   const std::vector<std::string>& full) {
  const auto& names = length == 3 ? brief : full;
  const auto at = static_cast<std::size_t>(index);
  return length > 2 && at < names.size() ? names[at]
                                         : padded(number, std::min<std::size_t>(length, 2));
}

// The text of a run of one letter, such as "dd"; a character that is no letter of the forms stands
// for itself.
std::string runText(char letter, std::size_t length, const DateTime& moment, const Locale& locale,
                    bool dial) {
  const auto digits = std::min<std::size_t>(length, 2);
  switch (letter) {
    case 'd':
      return nameOr(moment.day, length, dayOfWeek(moment), locale.shortDays, locale.days);
    case 'M':
      return nameOr(moment.month, length, moment.month - 1, locale.shortMonths, locale.months);
    case 'y':
      return length > 2 ? padded(moment.year, 4) : padded(moment.year % 100, 2);
    case 'H':
      return padded(moment.hour, digits);
    case 'h':
      return padded(dial ? hourOnDial(moment.hour) : moment.hour, digits);
    case 'm':
      return padded(moment.minute, digits);
    case 's':
      return padded(moment.second, digits);
    default:
      return std::string(length, letter);
  }
}

std::string filledIn(std::string_view form, const DateTime& moment, const Locale& locale) {
  const bool dial = hasHalvesOfDay(form);
  std::string text;
  bool quoted = false;
  while (!form.empty()) {
    const auto run = std::min(form.find_first_not_of(form[0]), form.size());
    std::size_t taken = 1;
    if (form[0] == '\'') {
      quoted = !quoted;
    } else if (quoted) {
      text += form[0];
    } else if (isHalfOfDay(form)) {
      text += moment.hour < 12 ? "AM" : "PM";
      taken = 2;
    } else {
      text += runText(form[0], run, moment, locale, dial);
      taken = run;
    }
    form.remove_prefix(taken);
  }
  return text;
}

}  // namespace

std::string dateText(const DateTime& moment, const Locale& locale) {
  return filledIn(locale.shortDate, moment, locale);
}

std::string generalDate(const DateTime& moment, const Locale& locale) {
  return dateText(moment, locale) + " " + filledIn(locale.longTime, moment, locale);
}

}  // namespace nautrel
