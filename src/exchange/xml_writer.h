// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nautrel::exchange {

/// Writes elements one after the other, indented. Names must outlive their elements.
class XmlWriter {
 public:
  using Attributes = std::initializer_list<std::pair<std::string_view, std::string_view>>;

  void begin(std::string_view name, Attributes attributes = {});
  void end();
  /// An element with a text and nothing else; its text stands as it is.
  void leaf(std::string_view name, std::string_view text, Attributes attributes = {});
  void empty(std::string_view name, Attributes attributes = {});
  /// A leaf, unless the text is empty.
  void leafIfAny(std::string_view name, std::string_view text);
  /// A text that is XML already, such as the declaration.
  void raw(std::string_view xml) { xml_ += xml; }

  /// What was written since the last call.
  std::string take() { return std::exchange(xml_, {}); }

 private:
  void open(std::string_view name, Attributes attributes);

  std::string xml_;
  std::vector<std::string_view> open_;
};

}  // namespace nautrel::exchange
