// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/dive_record.h"

namespace nautrel::exchange {

/// The diver's card or a piece of equipment as UDDF tells it: the texts of the elements, each at
/// the column for which it stands, and the lines of the notes. What has no element, or no valid
/// form for it, is a line of the notes: "Garantie: 2 years", "Geb: 3.4.70", "Fax (null)", "Tel
/// (empty)", and for a text that is no line or that XML cannot hold "Inst (base64): QQo=".
struct StandardRow {
  TextRow elements = {};
  std::vector<std::string> notes = {};
};

/// By the table, Benutzer or Ausrüstung. fromStandard() gives back exactly what toStandard() took.
/// @{
StandardRow toStandard(std::string_view table, const TextRow& row);
TextRow fromStandard(std::string_view table, const StandardRow& standard);
/// @}

/// Cuts the texts to what the windows hold; tells each cut in a sentence.
std::vector<std::string> fitRow(std::string_view table, TextRow& row);

}  // namespace nautrel::exchange
