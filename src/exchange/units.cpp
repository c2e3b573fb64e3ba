// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/units.h"

#include <charconv>
#include <cmath>

#include "exchange/plain_text.h"

namespace nautrel::exchange {

std::optional<double> readFileNumber(std::string_view text) {
  text = trimmed(text);
  std::string plain(text.substr(text.starts_with('+') ? 1 : 0));
  if (const auto comma = plain.find(','); comma != std::string::npos) plain[comma] = '.';
  double number = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
  const bool whole = error == std::errc() && end == plain.data() + plain.size();
  return whole && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::string fixedText(double number, int decimals) {
  // The longest double has 309 digits before its point.
  char digits[350];
  const auto [end, error] =
      std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed, decimals);
  std::string text(digits, end);
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

int decimalsOf(std::string_view number) {
  const auto sign = number.find_first_of(".,");
  if (sign == std::string_view::npos) return 0;
  const auto digits = number.substr(sign + 1);
  const auto end = digits.find_first_not_of("0123456789");
  return static_cast<int>(end == std::string_view::npos ? digits.size() : end);
}

}  // namespace nautrel::exchange
