// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nautrel::exchange {

/// Without the blanks, tabs and line breaks at both ends.
std::string_view trimmed(std::string_view text);

/// The parts between separators; one empty part for an empty text.
std::vector<std::string_view> splitAt(std::string_view text, std::string_view separator);

/// The lines of a text, whichever way they end.
std::vector<std::string_view> linesOf(std::string_view text);

/// Every run of white space as one blank, none at the ends.
std::string collapsed(std::string_view text);

/// How many bytes from the first on are UTF-8; all of them in a sound text.
std::size_t utf8Bytes(std::string_view bytes);
inline bool isUtf8(std::string_view bytes) {
  return utf8Bytes(bytes) == bytes.size();
}

/// Shortened for a message: at most 40 characters, on one line.
std::string shown(std::string_view text);

std::string lowerAscii(std::string_view text);

}  // namespace nautrel::exchange
