// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/rich_text_box.h"

#include "platform/text.h"

namespace nautrel {
namespace {

bool standsAlone(std::string_view text, std::size_t start, std::size_t end) {
  const bool wordBefore = start > 0 && isWordCharacter(characterBefore(text, start));
  const bool wordBehind = end < text.size() && isWordCharacter(characterFrom(text, end));
  return !wordBefore && !wordBehind;
}

}  // namespace

std::ptrdiff_t RichTextBox::Find(std::string_view term, Options options) const {
  if (term.empty()) return -1;
  const auto wanted = lowerCase(term);
  const auto text = lowerCase(text_);
  auto start = text.find(wanted);
  if (options == rtfWholeWord)
    while (start != std::string::npos && !standsAlone(text, start, start + wanted.size()))
      start = text.find(wanted, start + 1);
  if (start == std::string::npos) return -1;
  return static_cast<std::ptrdiff_t>(characters(std::string_view(text).substr(0, start)));
}

}  // namespace nautrel
