// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/value.h"

#include "platform/errors.h"

namespace nautrel {

Value Value::null() {
  Value value;
  value.held_ = NullValue{};
  return value;
}

bool Value::isYes() const {
  const auto* flag = std::get_if<bool>(&held_);
  return flag != nullptr && *flag;
}

std::string_view Value::view() const {
  const auto* text = std::get_if<std::string>(&held_);
  return text != nullptr ? std::string_view(*text) : std::string_view();
}

std::string Value::text(const Locale& locale) const {
  if (isNull()) raise(InvalidUseOfNull);
  return joined(locale);
}

std::string Value::joined(const Locale& locale) && {
  if (auto* text = std::get_if<std::string>(&held_)) return std::move(*text);
  return std::as_const(*this).joined(locale);
}

std::string Value::joined(const Locale& locale) const& {
  if (const auto* text = std::get_if<std::string>(&held_)) return *text;
  if (const auto* number = std::get_if<double>(&held_)) return generalText(*number, locale);
  if (const auto* flag = std::get_if<bool>(&held_)) return *flag ? "True" : "False";
  return {};
}

double Value::number(const Locale& locale) const {
  if (isNull()) raise(InvalidUseOfNull);
  if (const auto* text = std::get_if<std::string>(&held_)) return readNumber(*text, locale);
  if (const auto* number = std::get_if<double>(&held_)) return *number;
  if (const auto* flag = std::get_if<bool>(&held_)) return *flag ? -1 : 0;
  return 0;
}

}  // namespace nautrel
