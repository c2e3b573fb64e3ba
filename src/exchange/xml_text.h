// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nautrel::exchange {

/// Whether XML can hold every byte of the text: it has no form for most control characters, nor for
/// what is no UTF-8.
bool canStandInXml(std::string_view text);

/// Without what XML cannot hold.
std::string xmlCharactersOf(std::string_view text);

/// Appends the text as the content of an element or attribute. What XML cannot hold is dropped; a
/// reader gets the line breaks back as they are.
void appendEscaped(std::string& xml, std::string_view text);

std::string toBase64(std::string_view bytes);
/// Nothing if it is none; white space in it counts for nothing.
std::optional<std::string> fromBase64(std::string_view text);

}  // namespace nautrel::exchange
