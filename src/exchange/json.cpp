// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/json.h"

#include <cstdio>

#include "exchange/plain_text.h"
#include "platform/text.h"

namespace nautrel::exchange {
namespace {

std::string escaped(char character) {
  switch (character) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\n':
      return "\\n";
  }
  char text[8];
  std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(character));
  return text;
}

std::string inQuotes(std::string_view text) {
  std::string json = "\"";
  for (const char character : text) {
    const bool control = static_cast<unsigned char>(character) < ' ' || character == '\x7F';
    json += control || character == '"' || character == '\\' ? escaped(character)
                                                             : std::string(1, character);
  }
  return json += '"';
}

}  // namespace

/// Another tool may have stored what is no UTF-8.
Json::Json(std::string_view text)
    : text_(isUtf8(text) ? inQuotes(text) : inQuotes(fromCodePage(text))) {}

Json Json::object(const Members& members) {
  Json json("");
  json.text_ = "{";
  for (const auto& [name, value] : members)
    json.text_ += (json.text_.size() > 1 ? "," : "") + inQuotes(name) + ":" + value.text_;
  json.text_ += '}';
  return json;
}

Json Json::array(const std::vector<Json>& values) {
  Json json("");
  json.text_ = "[";
  for (const auto& value : values) json.text_ += (json.text_.size() > 1 ? "," : "") + value.text_;
  json.text_ += ']';
  return json;
}

}  // namespace nautrel::exchange
