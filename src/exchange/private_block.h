// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "exchange/dive_record.h"
#include "exchange/xml_writer.h"

namespace nautrel::exchange {

/// The one block of our own in a UDDF file: a dive's row as it stands, in `applicationdata`.
/// <nautrel xmlns="urn:nautrel:logbook:1" dec="."><f n="Tiefe">60.5</f>...</nautrel>
inline constexpr std::string_view kPrivateElement = "nautrel";
inline constexpr std::string_view kPrivateField = "f";
inline constexpr std::string_view kPrivateNamespace = "urn:nautrel:logbook:1";

void writePrivateBlock(XmlWriter& xml, const DiveRecord& dive, std::string_view decimalSign);

/// Takes a field of such a block in. False if its name or its content is none.
bool takePrivateField(DiveRecord& dive, std::string_view name, std::string_view encoding,
                      const std::string& text);

/// Gives the numbers another decimal sign. A text that is no plain number stays as it is.
void changeDecimalSign(DiveRecord& dive, std::string_view from, std::string_view to);

}  // namespace nautrel::exchange
