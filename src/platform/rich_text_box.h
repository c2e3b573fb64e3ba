// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace nautrel {

/// A working text with a find operation; it is never on show.
class RichTextBox {
 public:
  enum Options { rtfNone = 0, rtfWholeWord = 2 };

  const std::string& text() const { return text_; }
  void setText(std::string text) { text_ = std::move(text); }
  /// Empties the box; what held its text can hold the next one.
  std::string takeText() { return std::exchange(text_, {}); }

  /// The first place of the term in the text, in characters from 0, or -1; case does not matter. A
  /// whole word has no letter, digit or underscore on either side. An empty term is nowhere.
  std::ptrdiff_t Find(std::string_view term, Options options = rtfNone) const;

 private:
  std::string text_;
};

}  // namespace nautrel
