// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/csv_table.h"

namespace nautrel::exchange {

enum class CsvUnit {
  None,  // the head names none
  Metre,
  Foot,
  Bar,
  Psi,
  Kilogram,
  Pound,
  Litre,
  CubicFoot,
  Minute,
  Second,
  Hour,
  Percent,
  Celsius,
  Fahrenheit,
};

/// By a name such as "m", "ft", "lbs", "min"; None for any other.
CsvUnit csvUnit(std::string_view name);

/// What columns of other programs' files hold beyond those of the logbook.
namespace CsvRole {
inline constexpr int Unknown = -1;
inline constexpr int Date = -2;
inline constexpr int Clock = -3;
inline constexpr int Oxygen = -4;
inline constexpr int Helium = -5;
inline constexpr int AirTemperature = -6;
inline constexpr int WaterTemperature = -7;
}  // namespace CsvRole

struct CsvColumn {
  std::string head = {};        // as the file has it
  int role = CsvRole::Unknown;  // or the ordinal of a column of the logbook
  CsvUnit unit = CsvUnit::None;
  int tank = 1;  // that it is about, of several
};

/// Whether a column of that role may stand for each tank.
bool isOfTank(int role);

/// What the columns of a header mean, found by the names that programs give them.
std::vector<CsvColumn> csvColumns(const CsvRow& header);

/// True for the header of a dive's profile, which is no list of dives.
bool isProfileHeader(const CsvRow& header);

}  // namespace nautrel::exchange
