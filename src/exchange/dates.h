// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "exchange/dive_record.h"

namespace nautrel::exchange {

using Date = std::chrono::year_month_day;

/// A date and, where the file tells it, the clock.
struct Moment {
  Date date;
  std::optional<int> minuteOfDay;
};

/// From texts of whole numbers; nothing unless all three are such and the year has four digits. A
/// day behind its month's end becomes that end.
std::optional<Date> nearestDate(std::string_view day, std::string_view month,
                                std::string_view year);
std::optional<Date> nearestDate(const DiveRecord& dive);

/// Whether the dive's date is one as it stands.
bool hasRealDate(const DiveRecord& dive);

/// "2001-03-05"; nothing where nearestDate() has nothing.
std::optional<std::string> isoDate(const DiveRecord& dive);
std::string isoText(Date date);

/// "2001-03-05T14:30:00".
std::string momentText(const std::string& isoDate, int minuteOfDay);

/// Reads "2001-03-05T14:30:00" in the forms in which it occurs: without time, minutes, seconds or
/// zone, with
/// fractions, a blank for the T. The digits count, no zone moves them. Nothing for what is no date
/// and for the year 1, which some programs write for an unknown one.
std::optional<Moment> readMoment(std::string_view text);

/// A clock time such as "14:30", "2:30 PM", as minutes of the day.
std::optional<int> readClock(std::string_view text);
/// Likewise behind a date, where an hour may stand alone.
std::optional<int> readTimeOfDay(std::string_view text);

/// "05", "03" and "2001" for the three columns.
void setDate(DiveRecord& dive, Date date);

/// "05.03.2001", as the card and the equipment show dates, and back. Nothing for another text.
/// @{
std::string dottedText(Date date);
std::optional<Date> readDotted(std::string_view text);
/// @}

/// A whole number and nothing else but blanks around it.
std::optional<int> readWhole(std::string_view text);

}  // namespace nautrel::exchange
