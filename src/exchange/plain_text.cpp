// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/plain_text.h"

#include <algorithm>

#include "platform/text.h"

namespace nautrel::exchange {
namespace {

constexpr auto isLineEnd = [](char character) { return character == '\n' || character == '\r'; };
constexpr auto isWhite = [](char character) {
  return character == ' ' || character == '\t' || isLineEnd(character);
};

/// The place of the first character of such a kind, the size of the text without one.
template <class Kind>
std::size_t findFirst(std::string_view text, const Kind& isIt) {
  return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isIt) - text.begin());
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isWhite(text.front())) text.remove_prefix(1);
  while (!text.empty() && isWhite(text.back())) text.remove_suffix(1);
  return text;
}

std::vector<std::string_view> splitAt(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const auto end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + separator.size());
  }
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  for (;;) {
    const auto end = findFirst(text, isLineEnd);
    lines.push_back(text.substr(0, end));
    if (end == text.size()) return lines;
    text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
  }
}

std::string collapsed(std::string_view text) {
  std::string result;
  for (text = trimmed(text); !text.empty();) {
    const auto end = findFirst(text, isWhite);
    if (!result.empty()) result += ' ';
    result += text.substr(0, end);
    text = trimmed(text.substr(end));
  }
  return result;
}

std::string shown(std::string_view text) {
  constexpr std::size_t kMost = 40;
  auto line = onOneLine(text.substr(0, byteOfCharacter(text, kMost + 1)));
  return characters(line) > kMost ? firstCharacters(line, kMost) + "..." : line;
}

std::string lowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower)
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
  return lower;
}

std::size_t utf8Bytes(std::string_view bytes) {
  constexpr char32_t kBroken = 0xFFFD;
  constexpr std::string_view kBrokenItself = "\xEF\xBF\xBD";
  for (std::size_t at = 0; at < bytes.size();) {
    const auto code = characterFrom(bytes, at);
    if (code == kBroken && bytes.substr(at, kBrokenItself.size()) != kBrokenItself) return at;
    at += code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
  }
  return bytes.size();
}

}  // namespace nautrel::exchange
