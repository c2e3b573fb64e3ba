// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "exchange/xml_parser.h"

namespace nautrel::exchange {

/// An element with all that is in it: small ones, such as a dive without its samples.
struct XmlElement {
  std::string name;
  int line = 0;
  std::vector<std::pair<std::string, std::string>> attributes;  // those that mean something here
  /// Its own text, and of its paragraphs a line each.
  std::string text;
  bool afterParagraph = false;
  std::vector<XmlElement> children;

  /// Empty if there is none.
  std::string_view attribute(std::string_view wanted) const;
  /// The first one of the name, wherever it is in this element; nullptr without one.
  const XmlElement* find(std::string_view wanted) const;
  const XmlElement* child(std::string_view wanted) const;
  /// The text of such an element without the blanks around it, empty without one.
  std::string_view textOf(std::string_view wanted) const;

  /// Calls `visit` with each element of the name in this one.
  template <class Visit>
  void forEach(std::string_view wanted, const Visit& visit) const {
    for (const auto& each : children) {
      if (each.name == wanted) visit(each);
      each.forEach(wanted, visit);
    }
  }
};

/// Collects elements with all that is in them, one after the other, each from its begin to its end.
/// Refuses one with more elements than any needs, and more in all than any logbook has.
class XmlCollector {
 public:
  explicit XmlCollector(std::size_t mostOfAll = 2'000'000) : mostOfAll_(mostOfAll) {}

  bool isOpen() const { return !open_.empty(); }
  /// How many elements are open, itself included.
  std::size_t depth() const { return open_.size(); }

  void begin(std::string_view name, const XmlAttributes& attributes, int line);
  void text(std::string_view text);
  /// True at the end of the outermost one, which take() then hands out.
  bool end();
  XmlElement take() { return std::move(root_); }

 private:
  XmlElement root_;
  std::vector<XmlElement> open_;
  std::size_t count_ = 0;
  std::size_t countOfAll_ = 0;
  std::size_t mostOfAll_;
};

}  // namespace nautrel::exchange
