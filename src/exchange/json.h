// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nautrel::exchange {

/// A JSON value, as its text.
class Json {
 public:
  Json(std::string_view text);
  Json(const std::string& text) : Json(std::string_view(text)) {}
  Json(const char* text) : Json(std::string_view(text)) {}
  Json(int number) : text_(std::to_string(number)) {}
  Json(bool flag) : text_(flag ? "true" : "false") {}

  using Members = std::vector<std::pair<std::string_view, Json>>;
  static Json object(const Members& members);
  template <class Range>
  static Json array(const Range& values) {
    return array(std::vector<Json>(values.begin(), values.end()));
  }
  static Json array(const std::vector<Json>& values);

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace nautrel::exchange
