// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "platform/text.h"

namespace nautrel {

/// A value of a column or of a shared variable: nothing yet (Empty), Null, a text, a number or a
/// Yes/No flag.
class Value {
 public:
  Value() = default;
  Value(std::string text) : held_(std::move(text)) {}
  Value(const char* text) : held_(std::string(text)) {}
  Value(double number) : held_(number) {}
  Value(int number) : held_(static_cast<double>(number)) {}
  Value(bool flag) : held_(flag) {}
  static Value null();

  bool isEmpty() const { return std::holds_alternative<std::monostate>(held_); }
  bool isNull() const { return std::holds_alternative<NullValue>(held_); }
  bool isText() const { return std::holds_alternative<std::string>(held_); }
  /// True only for a flag that is Yes; nothing else counts.
  bool isYes() const;

  /// A text where it lies; of everything else a text without data.
  std::string_view view() const;
  /// The text as a text box or a message would take it: Empty is "", a number its general form, a
  /// flag "True" or "False". Null raises 94.
  std::string text(const Locale& locale) const;
  /// As text(), but Null counts as the empty text, as it does where texts are joined. A value that
  /// is about to go gives its text away.
  /// @{
  std::string joined(const Locale& locale) const&;
  std::string joined(const Locale& locale) &&;
  /// @}
  /// The number: Empty is 0, a flag -1 or 0. Raises 13 or 6 for a text that is none, 94 for Null.
  double number(const Locale& locale) const;

  friend bool operator==(const Value&, const Value&) = default;

 private:
  struct NullValue {
    friend bool operator==(NullValue, NullValue) { return true; }
  };
  std::variant<std::monostate, NullValue, std::string, double, bool> held_;
};

}  // namespace nautrel
