// SPDX-License-Identifier: GPL-2.0-or-later
#include <algorithm>

#include "platform/controls.h"
#include "platform/errors.h"
#include "platform/form.h"
#include "platform/program.h"
#include "platform/text.h"

namespace nautrel {
namespace {

std::string withoutPart(std::string text, std::size_t start, std::size_t length) {
  const auto from = byteOfCharacter(text, start);
  text.erase(from, byteOfCharacter(text, start + length) - from);
  return text;
}

}  // namespace

TextBox::TextBox(Form& form, std::string name, Design design)
    : Control(form, std::move(name)),
      text_(std::move(design.text)),
      maxLength_(design.maxLength),
      locked_(design.locked),
      multiLine_(design.multiLine) {
  setVisible(design.visible);
}

void TextBox::setText(std::string_view text) {
  const std::string fitting =
      maxLength_ == 0 ? std::string(text) : firstCharacters(text, maxLength_);
  if (text_ == fitting) return;
  const auto fromEnd = characters(text_) - std::min(characters(text_), start_ + length_);
  text_ = fitting;
  const auto size = characters(text_);
  start_ = size - std::min(size, fromEnd);
  length_ = 0;
  changed();
  raiseEvent(Change);
}

void TextBox::select(std::size_t start, std::size_t length) {
  userSelect(start, length);
  ++stamp_;
  changed();
}

void TextBox::selectAll() {
  select(0, characters(text_));
}

void TextBox::userSelect(std::size_t start, std::size_t length) {
  const auto size = characters(text_);
  start_ = std::min(start, size);
  length_ = std::min(length, size - start_);
}

void TextBox::userInsert(std::string_view typed) {
  userReplace(start_, length_, typed);
}

void TextBox::userBackspace() {
  if (length_ > 0) return userReplace(start_, length_, {});
  if (start_ > 0) userReplace(start_ - 1, 1, {});
}

void TextBox::userDelete() {
  userReplace(start_, length_ > 0 ? length_ : 1, {});
}

void TextBox::userReplace(std::size_t start, std::size_t length, std::string_view inserted) {
  form().program().handle([&] {
    changed();
    if (locked_ || !enabled() || !form().enabled()) return;
    replace(start, length, multiLine_ ? std::string(inserted) : onOneLine(inserted));
  });
}

void TextBox::replace(std::size_t start, std::size_t length, std::string inserted) {
  auto text = withoutPart(text_, start, length);
  if (maxLength_ != 0) {
    const auto kept = characters(text);
    auto fitting = firstCharacters(inserted, maxLength_ - std::min(kept, maxLength_));
    if (fitting.size() < inserted.size()) form().program().desktop().beep();
    inserted = std::move(fitting);
  }
  text.insert(byteOfCharacter(text, start), inserted);
  start_ = start + characters(inserted);
  length_ = 0;
  if (text_ == text) return;
  text_ = std::move(text);
  raiseEvent(Change);
}

std::string ListBox::List(int index) const {
  return index >= 0 && index < ListCount() ? lines_[static_cast<std::size_t>(index)]
                                           : std::string{};
}

void ListBox::AddItem(std::string line) {
  lines_.push_back(std::move(line));
  changed();
}

void ListBox::Clear() {
  lines_.clear();
  index_ = -1;
  ++generation_;
  changed();
}

void ListBox::setListIndex(int index) {
  if (index < -1 || index >= ListCount()) raise(InvalidPropertyValue);
  if (index == index_) return;
  index_ = index;
  changed();
  raiseEvent(Click);
}

void ListBox::userSelect(int index) {
  form().program().handle([&] {
    changed();
    if (canTakeFocus() && form().enabled() && index >= 0 && index < ListCount()) choose(index);
  });
}

void ListBox::choose(int index) {
  if (!takeFocus()) return;
  index_ = index;
  changed();
  raiseEvent(Click);
}

void ListBox::userDoubleClick(int index) {
  form().program().handle([&] {
    if (!canTakeFocus() || !form().enabled()) return;
    if (lines_.empty()) return raiseEvent(DblClick);
    if (index < 0 || index >= ListCount()) return;
    if (index != index_) choose(index);
    if (hasFocus() && index == index_) raiseEvent(DblClick);
  });
}

void ListBox::userMove(int by) {
  if (lines_.empty()) return;
  const int target = std::clamp(index_ + by, 0, ListCount() - 1);
  if (target != index_) userSelect(target);
}

void ListBox::userSearch(std::string_view beginning, bool further) {
  const int size = ListCount();
  const int first = index_ < 0 ? 0 : index_ + (further ? 1 : 0);
  for (int step = 0; step < size; ++step) {
    const int line = (first + step) % size;
    if (!lines_[static_cast<std::size_t>(line)].starts_with(beginning)) continue;
    if (line != index_) userSelect(line);
    return;
  }
}

ComboBox::ComboBox(Form& form, std::string name, Style style, std::vector<std::string> lines)
    : Control(form, std::move(name)), style_(style), lines_(std::move(lines)) {}

void ComboBox::AddItem(std::string line) {
  lines_.push_back(std::move(line));
  changed();
}

void ComboBox::setText(const std::string& text) {
  const auto line = std::find(lines_.begin(), lines_.end(), text);
  if (style_ == Style::ListOnly && line == lines_.end()) raise(TextIsReadOnly);
  const int index = style_ == Style::ListOnly ? static_cast<int>(line - lines_.begin()) : -1;
  if (text_ == text && index_ == index) return;
  const bool same = text_ == text;
  text_ = text;
  index_ = index;
  changed();
  if (same) return;
  raiseEvent(style_ == Style::ListOnly ? Click : Change);
}

void ComboBox::userReplace(std::size_t start, std::size_t length, std::string_view inserted) {
  form().program().handle([&] {
    changed();
    if (style_ != Style::FreeText || !enabled() || !form().enabled()) return;
    auto text = withoutPart(text_, start, length);
    text.insert(byteOfCharacter(text, start), onOneLine(inserted));
    setText(text);
  });
}

void ComboBox::userSelect(int index) {
  form().program().handle([&] {
    changed();
    if (!enabled() || !form().enabled()) return;
    text_ = lines_.at(static_cast<std::size_t>(index));
    index_ = index;
    raiseEvent(Click);
  });
}

}  // namespace nautrel
