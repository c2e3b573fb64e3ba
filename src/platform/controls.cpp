// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls.h"

#include <algorithm>

#include "platform/errors.h"
#include "platform/form.h"
#include "platform/program.h"
#include "platform/text.h"

namespace nautrel {

Captioned::Captioned(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

void Captioned::setCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  changed();
}

// Of several in a caption ("&Pr&int") the last one counts.
bool Captioned::answersAccessKey(std::string_view character) const {
  const auto mark = caption_.rfind('&');
  return mark != std::string::npos && canTakeFocus() &&
         lowerCase(firstCharacters(std::string_view(caption_).substr(mark + 1), 1)) ==
             lowerCase(character);
}

Frame& Frame::holds(std::initializer_list<Control*> controls) {
  for (auto* control : controls) control->setContainer(*this);
  return *this;
}

void Button::setDefault(bool isDefault) {
  auto* before = form().default_;
  if (isDefault)
    form().default_ = this;
  else if (before == this)
    form().default_ = nullptr;
  if (before != nullptr && before != this) before->changed();
  changed();
  form().notifyLook();
}

bool Button::isDefault() const {
  return form().defaultButton() == this;
}

void Button::setCancel() {
  form().cancel_ = this;
}

void Button::userClick() {
  form().program().handle([this] {
    if (!canTakeFocus() || !form().enabled()) return;
    if (takeFocus()) raiseEvent(Click);
  });
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption, bool on)
    : Captioned(form, std::move(name), std::move(caption)), on_(on) {}

void CheckBox::setOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  changed();
  raiseEvent(Click);
}

void CheckBox::userClick() {
  form().program().handle([this] {
    changed();
    if (!canTakeFocus() || !form().enabled()) return;
    if (takeFocus()) setOn(!on_);
  });
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, bool on)
    : Captioned(form, std::move(name), std::move(caption)), on_(on) {}

std::vector<OptionButton*> OptionButton::group() const {
  std::vector<OptionButton*> options;
  for (auto* control : form().controls())
    if (auto* option = dynamic_cast<OptionButton*>(control);
        option != nullptr && option->container() == container() && option->page() == page())
      options.push_back(option);
  return options;
}

void OptionButton::setOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  changed();
  if (!on) return;
  for (auto* neighbour : group()) {
    if (neighbour == this || !neighbour->on_) continue;
    neighbour->on_ = false;
    neighbour->changed();
  }
  raiseEvent(Click);
}

void OptionButton::userClick() {
  form().program().handle([this] {
    changed();
    if (!canTakeFocus() || !form().enabled()) return;
    if (!takeFocus()) return;
    setOn(true);
    raiseEvent(MouseUp);
  });
}

void OptionButton::userDoubleClick() {
  form().program().handle([this] {
    changed();
    if (hasFocus() && enabled() && form().enabled()) raiseEvent(DblClick);
  });
}

void OptionButton::userArrow(int direction) {
  form().program().handle([&] {
    auto options = group();
    const auto size = static_cast<int>(options.size());
    const auto here =
        static_cast<int>(std::find(options.begin(), options.end(), this) - options.begin());
    for (int step = 1; step < size; ++step) {
      auto* next =
          options[static_cast<std::size_t>((here + direction * step + size * step) % size)];
      if (!next->canTakeFocus()) continue;
      if (next->takeFocus()) next->setOn(true);
      return;
    }
  });
}

void SpinButton::userSpin(bool up) {
  form().program().handle([&] {
    if (!canTakeFocus() || !form().enabled()) return;
    if (takeFocus()) raiseEvent(up ? SpinUp : SpinDown);
  });
}

TabStrip::TabStrip(Form& form, std::string name, std::vector<std::string> captions)
    : Control(form, std::move(name)), captions_(std::move(captions)) {}

TabStrip& TabStrip::pageHolds(int page, std::initializer_list<Control*> controls) {
  for (auto* control : controls) control->setContainer(*this, page);
  return *this;
}

void TabStrip::setTab(int page) {
  if (page < 0 || page >= static_cast<int>(captions_.size())) raise(InvalidPropertyValue);
  if (tab_ == page) return;
  tab_ = page;
  changed();
  raiseEvent(Click);
}

void TabStrip::userTab(int page) {
  form().program().handle([&] {
    changed();
    if (!canTakeFocus() || !form().enabled()) return;
    if (tab_ == page) return;
    if (takeFocus()) setTab(page);
  });
}

Image::Image(Form& form, std::string name, bool visible) : Control(form, std::move(name)) {
  setVisible(visible);
}

void Image::userDrop(const std::string& path) {
  form().program().handle([&] {
    if (Drop && enabled() && shows() && form().enabled()) Drop(path);
  });
}

void Image::setPicture(Picture picture) {
  if (picture_ == picture) return;
  picture_ = std::move(picture);
  changed();
}

PictureBox::PictureBox(Form& form, std::string name, long backColor)
    : Frame(form, std::move(name)), backColor_(backColor) {}

void PictureBox::setBackColor(long color) {
  backColor_ = color;
  changed();
}

void PictureBox::userClick() {
  form().program().handle([this] {
    if (!canTakeFocus() || !form().enabled()) return;
    if (takeFocus()) raiseEvent(Click);
  });
}

Shape::Shape(Form& form, std::string name, double size, Place place)
    : Control(form, std::move(name)), size_(size), place_(place) {}

void Shape::setTop(double top) {
  place_.top = top;
  changed();
}

void ProgressBar::setMax(double max) {
  if (max <= 0) raise(InvalidPropertyValue);
  max_ = max;
  value_ = std::min(value_, max_);
  changed();
}

void ProgressBar::setValue(double value) {
  value_ = std::clamp(value, 0.0, max_);
  Refresh();
}

Timer::Timer(Form& form, std::string name, int interval)
    : Control(form, std::move(name)), interval_(interval) {}

void Timer::userFires() {
  form().program().handle([this] {
    if (enabled()) raiseEvent(Fires);
  });
}

void Navigator::userPress(Arrow arrow) {
  form().program().handle([&] {
    if (!enabled() || !form().enabled()) return;
    raiseEvent(MouseDown);
    go(arrow);
  });
}

}  // namespace nautrel
