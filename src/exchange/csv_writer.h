// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/dive_record.h"

namespace nautrel::exchange {

/// The heads of the columns of our own files, from `Nr` on; the date before them is for others.
const std::vector<std::string>& ownCsvHeader();
inline constexpr std::string_view kCsvDateColumn = "Date";

/// What separates the cells tells the decimal sign of the numbers on return.
char csvSeparatorFor(std::string_view decimalSign);

/// Spreadsheets run a cell that begins like a formula. An apostrophe before it keeps them off;
/// unguarded() gives back exactly what was given to guarded().
/// @{
std::string guarded(std::string_view text);
std::string unguarded(std::string_view cell);
/// @}

/// Appends lines of our form, ended by CR LF: texts quoted, Null as nothing, empty as "".
/// @{
void appendCsvHeader(std::string& file, char separator);
void appendCsvDive(std::string& file, char separator, const DiveRecord& dive);
/// @}

}  // namespace nautrel::exchange
