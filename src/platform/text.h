// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel {

/// What the diver's system says about numbers and dates. Separators are UTF-8 and may take more
/// than one byte (some systems group with a narrow blank).
struct Locale {
  std::string decimal = ".";
  std::string grouping = ",";
  /// Date and time forms in the letters d, dd, ddd, dddd, M, MM, MMM, MMMM, yy, yyyy, H, HH, h, hh,
  /// mm, ss, AP; other characters stand for themselves, and so does everything between single
  /// quotes.
  std::string shortDate = "M/d/yyyy";
  std::string longTime = "h:mm:ss AP";
  /// Short and in full, from January and from Sunday on; what is not there is written as a number.
  std::vector<std::string> shortMonths = {};
  std::vector<std::string> months = {};
  std::vector<std::string> shortDays = {};
  std::vector<std::string> days = {};
};

/// A moment of the local calendar and clock.
struct DateTime {
  int year = 2000;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// Reads a number as the locale writes it: blanks around it, a sign, grouping anywhere before the
/// decimal separator, an exponent. Nothing for every other text, and for a number too large.
std::optional<double> tryNumber(std::string_view text, const Locale& locale);

/// As tryNumber(). Raises 13 if the text is no number, 6 if it is too large.
double readNumber(std::string_view text, const Locale& locale);

/// To whole numbers, halves to the even neighbour. Raises 6 outside the range.
std::int16_t toInt16(double number);
std::int32_t toInt32(double number);

/// To single precision. Raises 6 outside its range.
float toSingle(double number);

/// The general form: at most 15 significant digits, without an exponent as long as 15 digits
/// before or behind the separator are enough. Raises 6 for what is no finite number, as does
/// formatNumber().
std::string generalText(double number, const Locale& locale);

/// Formats by a pattern of '#', '0' and at most one '.': "###0.000", "#.##", "#". Rounds the
/// 15-digit decimal, halves away from zero; never groups, never an exponent.
std::string formatNumber(double number, std::string_view pattern, const Locale& locale);

/// The short date, and the short date, a blank and the long time.
std::string dateText(const DateTime& moment, const Locale& locale);
std::string generalDate(const DateTime& moment, const Locale& locale);

/// Lower case by simple folding: every character stays one character.
std::string lowerCase(std::string_view text);

/// As a box of one line takes a text in: line breaks at its end are dropped, and every other break,
/// tab and control character becomes a blank. CR LF is one break.
std::string onOneLine(std::string_view text);

/// Lengths and positions count characters (code points), from 0.
std::size_t characters(std::string_view text);
std::string firstCharacters(std::string_view text, std::size_t count);
/// The byte at which character `index` starts; the size of the text if it has fewer.
std::size_t byteOfCharacter(std::string_view text, std::size_t index);
/// The character that starts at a byte of the text, and the one that ends before it.
char32_t characterFrom(std::string_view text, std::size_t byte);
char32_t characterBefore(std::string_view text, std::size_t byte);
bool isWordCharacter(char32_t character);

/// To and from the 8-bit western code page (1252). What it lacks becomes "?".
std::string toCodePage(std::string_view text);
std::string fromCodePage(std::string_view bytes);
/// As toCodePage(), into a room for as many bytes as the text has. Returns how many it took.
std::size_t writeCodePage(char* room, std::string_view text);

}  // namespace nautrel
