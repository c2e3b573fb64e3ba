// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/xml_writer.h"

#include "exchange/xml_text.h"

namespace nautrel::exchange {

void XmlWriter::open(std::string_view name, Attributes attributes) {
  xml_.append(2 * open_.size(), ' ') += '<';
  xml_ += name;
  for (const auto& [key, value] : attributes) {
    ((xml_ += ' ') += key) += "=\"";
    appendEscaped(xml_, value);
    xml_ += '"';
  }
}

void XmlWriter::begin(std::string_view name, Attributes attributes) {
  open(name, attributes);
  xml_ += ">\n";
  open_.push_back(name);
}

void XmlWriter::end() {
  const auto name = open_.back();
  open_.pop_back();
  ((xml_.append(2 * open_.size(), ' ') += "</") += name) += ">\n";
}

void XmlWriter::leaf(std::string_view name, std::string_view text, Attributes attributes) {
  if (text.empty()) return empty(name, attributes);
  open(name, attributes);
  xml_ += '>';
  appendEscaped(xml_, text);
  ((xml_ += "</") += name) += ">\n";
}

void XmlWriter::empty(std::string_view name, Attributes attributes) {
  open(name, attributes);
  xml_ += "/>\n";
}

void XmlWriter::leafIfAny(std::string_view name, std::string_view text) {
  if (!text.empty()) leaf(name, text);
}

}  // namespace nautrel::exchange
