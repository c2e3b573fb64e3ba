// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/errors.h"

namespace nautrel {
namespace {

constexpr int kSignificantDigits = 15;

// ---- reading --------------------------------------------------------------------------------

bool take(std::string_view& rest, std::string_view part) {
  if (part.empty() || !rest.starts_with(part)) return false;
  rest.remove_prefix(part.size());
  return true;
}

bool takeDigits(std::string_view& rest, std::string& number) {
  const auto count = std::min(rest.find_first_not_of("0123456789"), rest.size());
  number += rest.substr(0, count);
  rest.remove_prefix(count);
  return count > 0;
}

bool takeSign(std::string_view& rest, std::string& number) {
  if (take(rest, "+")) return true;
  if (!take(rest, "-")) return false;
  number += '-';
  return true;
}

// No keyboard has the narrow blanks and the curly apostrophe that some systems group with.
std::string_view typedGrouping(std::string_view grouping) {
  if (grouping == "\u00A0" || grouping == "\u202F") return " ";
  if (grouping == "\u2019") return "'";
  return {};
}

bool takeGrouping(std::string_view& rest, const Locale& locale) {
  if (locale.grouping == locale.decimal) return false;
  return take(rest, locale.grouping) || take(rest, typedGrouping(locale.grouping));
}

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// The number as "-12.5e-3", whatever the locale; empty if the text is none.
std::string plainNotation(std::string_view text, const Locale& locale) {
  auto rest = withoutBlanks(text);
  std::string number;
  takeSign(rest, number);
  bool anyDigit = false;
  while (true) {
    if (takeDigits(rest, number))
      anyDigit = true;
    else if (!takeGrouping(rest, locale))
      break;
  }
  if (take(rest, locale.decimal)) {
    number += '.';
    if (takeDigits(rest, number)) anyDigit = true;
  }
  if (!anyDigit) return {};
  if (take(rest, "E") || take(rest, "e")) {
    number += 'e';
    takeSign(rest, number);
    if (!takeDigits(rest, number)) return {};
  }
  return rest.empty() ? number : std::string();
}

// A number that a double cannot hold is either too large or next to nothing: the place of its
// first digit other than 0 tells which.
bool isTooLarge(std::string_view number) {
  const auto mantissa = number.substr(0, number.find('e'));
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  const auto first = mantissa.find_first_of("123456789");
  const auto exponent = number.substr(std::min(mantissa.size() + 1, number.size()));
  long long power = 0;
  const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  if (read.ec == std::errc::result_out_of_range) return exponent.front() != '-';
  return power > static_cast<long long>(first) - static_cast<long long>(point);
}

struct Reading {
  bool isNumber = false;
  bool tooLarge = false;
  double value = 0;
};

Reading read(std::string_view text, const Locale& locale) {
  const auto number = plainNotation(text, locale);
  if (number.empty()) return {};
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc() && std::isfinite(value)) return {true, false, value};
  if (isTooLarge(number)) return {true, true, 0};
  return {true, false, 0};
}

template <class Whole>
Whole toWhole(double number) {
  const double whole = std::nearbyint(number);
  const bool fits =
      whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max();
  if (!fits) raise(Overflow);
  return static_cast<Whole>(whole);
}

// ---- writing --------------------------------------------------------------------------------

// The 15-digit decimal of a number: 0.digits times ten to the power of `point`, without zeros at
// its end. Zero has no digits.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;

  int size() const { return static_cast<int>(digits.size()); }
  int decimals() const { return std::max(0, size() - point); }

  void trim() {
    digits.resize(digits.find_last_not_of('0') + 1);
    if (digits.empty()) point = 0;
  }

  void roundUp() {
    while (!digits.empty() && digits.back() == '9') digits.pop_back();
    if (!digits.empty()) {
      ++digits.back();
      return;
    }
    digits = "1";
    ++point;
  }

  void round(int decimals) {
    const int kept = point + decimals;
    if (kept >= size()) return;
    const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (up)
      roundUp();
    else
      trim();
  }

  std::string whole() const {
    if (point <= 0) return {};
    const auto places = static_cast<std::size_t>(point);
    std::string text = digits.substr(0, places);
    text.resize(places, '0');
    return text;
  }

  std::string fraction() const {
    if (point >= size()) return {};
    if (point >= 0) return digits.substr(static_cast<std::size_t>(point));
    return std::string(static_cast<std::size_t>(-point), '0') + digits;
  }
};

Decimal decimalOf(double number) {
  if (!std::isfinite(number)) raise(Overflow);
  // "d.dddddddddddddde+dd"
  std::array<char, 32> text{};
  constexpr std::size_t kExponent = kSignificantDigits + 3;
  const char* end = std::to_chars(text.data(), text.data() + text.size(), std::abs(number),
                                  std::chars_format::scientific, kSignificantDigits - 1)
                        .ptr;
  int exponent = 0;
  std::from_chars(text.data() + kExponent, end, exponent);
  if (text[kExponent - 1] == '-') exponent = -exponent;

  Decimal decimal;
  decimal.negative = std::signbit(number);
  decimal.digits.assign(1, text[0]).append(text.data() + 2, kSignificantDigits - 1);
  decimal.point = exponent + 1;
  decimal.trim();
  return decimal;
}

std::string withExponent(const Decimal& decimal, const Locale& locale) {
  std::string text = decimal.digits.substr(0, 1);
  if (decimal.size() > 1) text += locale.decimal + decimal.digits.substr(1);
  const int exponent = decimal.point - 1;
  const auto power = std::to_string(std::abs(exponent));
  text += exponent < 0 ? "E-" : "E+";
  if (power.size() < 2) text += '0';
  return text + power;
}

struct Pattern {
  std::size_t wholeDigits = 0;     // at least
  std::size_t fractionDigits = 0;  // at least
  int decimals = 0;                // at most
  bool separator = false;
};

Pattern readPattern(std::string_view text) {
  const auto point = text.find('.');
  const auto whole = text.substr(0, point);
  Pattern pattern;
  if (const auto zero = whole.find('0'); zero != std::string_view::npos)
    pattern.wholeDigits = whole.size() - zero;
  if (point == std::string_view::npos) return pattern;
  const auto fraction = text.substr(point + 1);
  pattern.separator = true;
  pattern.decimals = static_cast<int>(fraction.size());
  pattern.fractionDigits = fraction.find_last_of('0') + 1;
  return pattern;
}

}  // namespace

std::optional<double> tryNumber(std::string_view text, const Locale& locale) {
  const auto reading = read(text, locale);
  if (!reading.isNumber || reading.tooLarge) return std::nullopt;
  return reading.value;
}

double readNumber(std::string_view text, const Locale& locale) {
  const auto reading = read(text, locale);
  if (!reading.isNumber) raise(TypeMismatch);
  if (reading.tooLarge) raise(Overflow);
  return reading.value;
}

std::int16_t toInt16(double number) {
  return toWhole<std::int16_t>(number);
}
std::int32_t toInt32(double number) {
  return toWhole<std::int32_t>(number);
}

float toSingle(double number) {
  if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) raise(Overflow);
  return static_cast<float>(number);
}

std::string generalText(double number, const Locale& locale) {
  const auto decimal = decimalOf(number);
  const bool plain =
      decimal.point <= kSignificantDigits && decimal.decimals() <= kSignificantDigits;
  std::string text = decimal.negative ? "-" : "";
  if (!plain) return text += withExponent(decimal, locale);
  text += decimal.point > 0 ? decimal.whole() : "0";
  if (decimal.decimals() > 0) text += locale.decimal + decimal.fraction();
  return text;
}

std::string formatNumber(double number, std::string_view pattern, const Locale& locale) {
  const auto wanted = readPattern(pattern);
  auto decimal = decimalOf(number);
  decimal.round(wanted.decimals);

  auto text = decimal.whole();
  if (text.size() < wanted.wholeDigits) text.insert(0, wanted.wholeDigits - text.size(), '0');
  if (wanted.separator) {
    auto fraction = decimal.fraction();
    if (fraction.size() < wanted.fractionDigits) fraction.resize(wanted.fractionDigits, '0');
    text += locale.decimal + fraction;
  }
  // What rounds to zero keeps its sign, but a sign alone is no number.
  return decimal.negative && !text.empty() ? "-" + text : text;
}

}  // namespace nautrel
