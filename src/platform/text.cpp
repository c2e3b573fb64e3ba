// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace nautrel {
namespace {

constexpr char32_t kBroken = 0xFFFD;

struct Character {
  char32_t code = 0;
  std::size_t bytes = 0;
};

// A byte that begins no character counts as one, so that a damaged text still has its length.
Character characterAt(std::string_view text, std::size_t byte) {
  const auto first = static_cast<unsigned char>(text[byte]);
  if (first < 0x80) return {first, 1};
  utf8proc_int32_t code = 0;
  const auto bytes = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + byte),
                                      static_cast<utf8proc_ssize_t>(text.size() - byte), &code);
  if (bytes <= 0) return {kBroken, 1};
  return {static_cast<char32_t>(code), static_cast<std::size_t>(bytes)};
}

void append(std::string& text, char32_t code) {
  std::array<utf8proc_uint8_t, 4> bytes{};
  const auto count = utf8proc_encode_char(static_cast<utf8proc_int32_t>(code), bytes.data());
  text.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(count));
}

// Whole logbooks are searched and written to files, and most of their characters are plain: those
// go by runs, and the runs by blocks that the machine takes at once.
using Word = std::uint64_t;
constexpr std::size_t kWord = sizeof(Word);
constexpr Word kBeyondPlain = 0x8080'8080'8080'8080;

Word wordAt(const char* bytes) {
  Word word = 0;
  std::memcpy(&word, bytes, kWord);
  return word;
}

std::size_t plainUntil(std::string_view text, std::size_t byte) {
  const auto word = [&](std::size_t place) { return wordAt(text.data() + byte + place * kWord); };
  const auto four = [&] { return word(0) | word(1) | word(2) | word(3); };
  while (byte + 4 * kWord <= text.size() && (four() & kBeyondPlain) == 0) byte += 4 * kWord;
  while (byte + kWord <= text.size() && (word(0) & kBeyondPlain) == 0) byte += kWord;
  while (byte < text.size() && static_cast<unsigned char>(text[byte]) < 0x80) ++byte;
  return byte;
}

/// Copies the plain characters with which a text begins. Returns how many.
std::size_t copyPlain(char* room, std::string_view text) {
  std::size_t byte = 0;
  for (; byte + kWord <= text.size(); byte += kWord) {
    const Word word = wordAt(text.data() + byte);
    if ((word & kBeyondPlain) != 0) break;
    std::memcpy(room + byte, &word, kWord);
  }
  if (text.size() >= kWord && byte + kWord > text.size()) {
    const Word word = wordAt(text.data() + text.size() - kWord);
    std::memcpy(room + text.size() - kWord, &word, kWord);
    if ((word & kBeyondPlain) == 0) return text.size();
  }
  for (; byte < text.size() && static_cast<unsigned char>(text[byte]) < 0x80; ++byte)
    room[byte] = text[byte];
  return byte;
}

/// The plain letters alone; no byte of another character is taken for one.
void lowerPlainLetters(std::string& text) {
  char* const letters = text.data();
  const auto count = text.size();
  for (std::size_t i = 0; i < count; ++i) {
    const bool capital = static_cast<unsigned char>(letters[i] - 'A') <= 'Z' - 'A';
    letters[i] = static_cast<char>(letters[i] | (capital ? 'a' - 'A' : 0));
  }
}

std::string lowerOf(char32_t code) {
  std::string lower;
  append(lower, static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(code))));
  return lower;
}

// What the code page holds from byte 0x80 on; from 0xA0 on it is the same as Unicode. The five
// bytes without a character stand for the control characters of the same number.
constexpr unsigned kFirstOwn = 0x80;
constexpr std::array<char32_t, 32> kOwn{
    U'€', 0x81, U'‚', U'ƒ', U'„', U'…', U'†', U'‡', U'ˆ', U'‰', U'Š', U'‹', U'Œ', 0x8D, U'Ž', 0x8F,
    0x90, U'‘', U'’', U'“', U'”', U'•', U'–', U'—', U'˜', U'™', U'š', U'›', U'œ', 0x9D, U'ž', U'Ÿ'};

char codePageByte(char32_t code) {
  if (code < kFirstOwn || (code >= kFirstOwn + kOwn.size() && code <= 0xFF))
    return static_cast<char>(code);
  const auto* place = std::find(kOwn.begin(), kOwn.end(), code);
  if (place == kOwn.end()) return '?';
  return static_cast<char>(kFirstOwn + static_cast<unsigned>(place - kOwn.begin()));
}

bool isBreak(char32_t code) {
  return (code >= '\n' && code <= '\r') || code == 0x85 || code == 0x2028 || code == 0x2029;
}

bool isControl(char32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

}  // namespace

std::string onOneLine(std::string_view text) {
  std::string line;
  std::size_t behindLastText = 0;
  for (std::size_t byte = 0; byte < text.size();) {
    const auto [code, bytes] = characterAt(text, byte);
    const bool crLf = code == '\r' && text.substr(byte + 1, 1) == "\n";
    if (isBreak(code) || isControl(code))
      line += ' ';
    else
      line += text.substr(byte, bytes);
    if (!isBreak(code)) behindLastText = line.size();
    byte += crLf ? 2 : bytes;
  }
  line.resize(behindLastText);
  return line;
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  lowerPlainLetters(lower);
  std::string joined;  // only where a character becomes longer or shorter
  std::size_t taken = 0;
  for (std::size_t byte = plainUntil(lower, 0); byte < lower.size();) {
    const auto [code, bytes] = characterAt(lower, byte);
    const auto small = code == kBroken ? lower.substr(byte, bytes) : lowerOf(code);
    if (small.size() == bytes) {
      lower.replace(byte, bytes, small);
    } else {
      joined.append(lower, taken, byte - taken).append(small);
      taken = byte + bytes;
    }
    byte = plainUntil(lower, byte + bytes);
  }
  return taken == 0 ? lower : joined.append(lower, taken);
}

std::size_t characters(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t byte = 0; byte < text.size(); ++count) {
    const auto plain = plainUntil(text, byte);
    count += plain - byte;
    byte = plain;
    if (byte == text.size()) break;
    byte += characterAt(text, byte).bytes;
  }
  return count;
}

std::string firstCharacters(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, byteOfCharacter(text, count)));
}

std::size_t byteOfCharacter(std::string_view text, std::size_t index) {
  std::size_t byte = 0;
  for (; index > 0 && byte < text.size(); --index) byte += characterAt(text, byte).bytes;
  return byte;
}

char32_t characterFrom(std::string_view text, std::size_t byte) {
  return characterAt(text, byte).code;
}

char32_t characterBefore(std::string_view text, std::size_t byte) {
  const auto continues = [&](std::size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  std::size_t start = byte - 1;
  while (start > 0 && continues(start)) --start;
  return characterAt(text, start).code;
}

bool isWordCharacter(char32_t character) {
  if (character == U'_') return true;
  switch (utf8proc_category(static_cast<utf8proc_int32_t>(character))) {
    case UTF8PROC_CATEGORY_LU:
    case UTF8PROC_CATEGORY_LL:
    case UTF8PROC_CATEGORY_LT:
    case UTF8PROC_CATEGORY_LM:
    case UTF8PROC_CATEGORY_LO:
    case UTF8PROC_CATEGORY_ND:
    // An accent written as a character of its own belongs to the letter before it.
    case UTF8PROC_CATEGORY_MN:
    case UTF8PROC_CATEGORY_MC:
      return true;
    default:
      return false;
  }
}

std::string toCodePage(std::string_view text) {
  std::string bytes(text.size(), '\0');
  bytes.resize(writeCodePage(bytes.data(), text));
  return bytes;
}

std::size_t writeCodePage(char* room, std::string_view text) {
  std::size_t written = 0;
  for (std::size_t byte = 0; byte < text.size();) {
    const auto plain = copyPlain(room + written, text.substr(byte));
    written += plain;
    byte += plain;
    if (byte == text.size()) break;
    const auto character = characterAt(text, byte);
    room[written++] = codePageByte(character.code);
    byte += character.bytes;
  }
  return written;
}

std::string fromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto number = static_cast<unsigned char>(byte);
    const bool own = number >= kFirstOwn && number < kFirstOwn + kOwn.size();
    append(text, own ? kOwn[number - kFirstOwn] : number);
  }
  return text;
}

}  // namespace nautrel
