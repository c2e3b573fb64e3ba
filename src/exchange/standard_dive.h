// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "exchange/dive_record.h"
#include "platform/text.h"

namespace nautrel::exchange {

/// The texts of a dive's UDDF elements, each at the column for which it stands: a date as
/// "2001-03-05" at `Tag`, the environment at `Salz`, the platform at `Ufer`, the tank's material at
/// `Alu`, all buddies joined by ", ", the notes with their lines.
using StandardDive = std::array<Cell, kDiveColumns>;

/// The columns that are told by the element of a column, itself among them: the date three, the
/// environment two. None for the columns of which UDDF knows nothing.
const std::vector<int>& columnsToldBy(int column);

/// What stands for a dive whose texts follow the locale.
StandardDive toStandard(const DiveRecord& dive, const Locale& locale);

/// Whether an element says nothing: missing, empty, or 0 where that means unknown.
bool saysNothing(int column, const Cell& text);

/// Whether two texts of an element mean the same, but for the way in which numbers and white space
/// are written; centimetres and the like count as the finer value of which they are the rounding.
bool meansTheSame(int column, const Cell& fromFile, const Cell& exact);

/// The unknown date, for a form that must have one.
inline constexpr const char* kUnknownDate = "1900-01-01";

/// Why a text is no value of a dive: "is no number", "is negative"; empty for one that is.
std::string_view faultOfNumber(std::string_view text, const Locale& locale);

/// The parts of a list of buddies, blanks around them and empty ones dropped.
std::vector<std::string> buddiesOf(std::string_view list);

}  // namespace nautrel::exchange
