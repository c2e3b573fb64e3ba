// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/private_block.h"

#include <algorithm>

#include "exchange/plain_text.h"
#include "exchange/xml_text.h"

namespace nautrel::exchange {
namespace {

constexpr std::string_view kBase64 = "base64";

int ordinalOf(std::string_view name) {
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal)
    if (diveColumn(ordinal).name == name) return ordinal;
  return -1;
}

void writeField(XmlWriter& xml, std::string_view name, const std::string& text) {
  if (canStandInXml(text))
    xml.leaf(kPrivateField, text, {{"n", name}});
  else
    xml.leaf(kPrivateField, toBase64(text), {{"n", name}, {"enc", kBase64}});
}

/// Digits with the sign among them once, behind a minus or plus.
bool isPlainNumber(std::string_view text, std::string_view sign) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  const auto place = text.find(sign);
  if (place == std::string_view::npos) return false;
  const auto isDigit = [](char digit) { return digit >= '0' && digit <= '9'; };
  const auto whole = text.substr(0, place);
  const auto part = text.substr(place + sign.size());
  return whole.size() + part.size() > 0 && std::all_of(whole.begin(), whole.end(), isDigit) &&
         std::all_of(part.begin(), part.end(), isDigit);
}

}  // namespace

void writePrivateBlock(XmlWriter& xml, const DiveRecord& dive, std::string_view decimalSign) {
  xml.begin(kPrivateElement, {{"xmlns", kPrivateNamespace}, {"dec", decimalSign}});
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal) {
    const auto name = diveColumn(ordinal).name;
    if (diveColumn(ordinal).isFlag)
      xml.leaf(kPrivateField, dive.flags[ordinal] ? "1" : "0", {{"n", name}});
    else if (dive.texts[ordinal])
      writeField(xml, name, *dive.texts[ordinal]);
  }
  xml.end();
}

bool takePrivateField(DiveRecord& dive, std::string_view name, std::string_view encoding,
                      const std::string& text) {
  const int ordinal = ordinalOf(name);
  if (ordinal < 0) return false;
  if (diveColumn(ordinal).isFlag) {
    const auto flag = trimmed(text);
    dive.flags[ordinal] = flag == "1";
    return flag == "1" || flag == "0";
  }
  if (encoding.empty()) {
    dive.texts[ordinal] = text;
    return true;
  }
  dive.texts[ordinal] = encoding == kBase64 ? fromBase64(text) : std::nullopt;
  return dive.texts[ordinal].has_value();
}

void changeDecimalSign(DiveRecord& dive, std::string_view from, std::string_view to) {
  if (from == to || from.empty()) return;
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal) {
    auto& text = dive.texts[ordinal];
    if (!diveColumn(ordinal).isNumber || !text) continue;
    const auto number = trimmed(*text);
    if (isPlainNumber(number, from)) text->replace(text->find(from), from.size(), to);
  }
}

}  // namespace nautrel::exchange
