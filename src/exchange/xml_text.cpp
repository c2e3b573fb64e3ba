// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/xml_text.h"

#include <algorithm>
#include <cstdint>

#include "platform/text.h"

namespace nautrel::exchange {
namespace {

constexpr std::string_view kDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr int kBitsOfDigit = 6;
constexpr int kBitsOfByte = 8;
constexpr char32_t kBroken = 0xFFFD;
constexpr std::string_view kBrokenItself = "\xEF\xBF\xBD";

bool plainStands(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// The bytes of the character that starts at `at`, 0 if XML cannot hold it.
std::size_t standingBytes(std::string_view text, std::size_t at) {
  if (static_cast<unsigned char>(text[at]) < 0x80) return plainStands(text[at]) ? 1 : 0;
  const auto code = characterFrom(text, at);
  if (code == kBroken)
    return text.substr(at, kBrokenItself.size()) == kBrokenItself ? kBrokenItself.size() : 0;
  if (code == 0xFFFE || code == 0xFFFF) return 0;
  return code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

std::size_t endOfPlain(std::string_view text, std::size_t at) {
  const auto isPlain = [](unsigned char byte) { return byte >= ' ' && byte < 0x80; };
  while (at < text.size() && isPlain(static_cast<unsigned char>(text[at]))) ++at;
  return at;
}

/// Calls `take` for each run of characters that can stand, and `drop` for each byte that cannot.
template <class Take, class Drop>
void forRuns(std::string_view text, const Take& take, const Drop& drop) {
  for (std::size_t at = 0; at < text.size();) {
    auto end = endOfPlain(text, at);
    if (end == at) end += standingBytes(text, at);
    if (end == at) {
      drop();
      ++at;
    } else {
      take(text.substr(at, end - at));
      at = end;
    }
  }
}

std::string_view escapeOf(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\r':
      return "&#13;";
    default:
      return {};
  }
}

}  // namespace

bool canStandInXml(std::string_view text) {
  bool stands = true;
  forRuns(
      text, [](std::string_view) {}, [&] { stands = false; });
  return stands;
}

std::string xmlCharactersOf(std::string_view text) {
  std::string kept;
  forRuns(
      text, [&](std::string_view run) { kept += run; }, [] {});
  return kept;
}

void appendEscaped(std::string& xml, std::string_view text) {
  const auto isEscaped = [](char character) {
    return character == '&' || character == '<' || character == '>' || character == '"' ||
           character == '\r';
  };
  const auto append = [&](std::string_view run) {
    for (const char* at = run.begin(); at != run.end();) {
      const char* const end = std::find_if(at, run.end(), isEscaped);
      xml.append(at, end);
      at = end;
      if (at != run.end()) xml += escapeOf(*at++);
    }
  };
  forRuns(text, append, [] {});
}

std::string toBase64(std::string_view bytes) {
  std::string text;
  std::uint32_t bits = 0;
  int count = 0;
  const auto takeDigit = [&] { text += kDigits[(bits >> (count -= kBitsOfDigit)) & 63]; };
  for (const char byte : bytes) {
    bits = (bits << kBitsOfByte) | static_cast<unsigned char>(byte);
    for (count += kBitsOfByte; count >= kBitsOfDigit;) takeDigit();
  }
  if (count > 0) {
    bits <<= kBitsOfDigit - count;
    count = kBitsOfDigit;
    takeDigit();
  }
  while (text.size() % 4 != 0) text += '=';
  return text;
}

std::optional<std::string> fromBase64(std::string_view text) {
  std::string bytes;
  std::uint32_t bits = 0;
  int count = 0;
  for (const char character : text.substr(0, text.find('='))) {
    if (std::string_view(" \t\r\n").find(character) != std::string_view::npos) continue;
    const auto digit = kDigits.find(character);
    if (digit == std::string_view::npos) return {};
    bits = (bits << kBitsOfDigit) | static_cast<std::uint32_t>(digit);
    count += kBitsOfDigit;
    if (count < kBitsOfByte) continue;
    count -= kBitsOfByte;
    bytes += static_cast<char>((bits >> count) & 0xFF);
  }
  return bytes;
}

}  // namespace nautrel::exchange
