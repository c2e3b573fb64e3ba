// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/user.h"

#include "platform/text.h"

namespace nautrel {

void focus(Control& control) {
  control.form().userFocus(control);
}

void typeOn(Form& form, std::string_view text) {
  while (!text.empty()) {
    const auto size = byteOfCharacter(text, 1);
    form.userType(text.substr(0, size));
    text.remove_prefix(size);
  }
}

void type(TextBox& box, std::string_view text) {
  focus(box);
  typeOn(box.form(), text);
}

void type(ComboBox& box, std::string_view text) {
  focus(box);
  typeOn(box.form(), text);
}

void paste(TextBox& box, std::string_view text) {
  focus(box);
  box.form().userType(text);
}

void clear(TextBox& box) {
  focus(box);
  box.userSelect(0, characters(box.text()));
  press(box.form(), Key::Delete);
}

void click(Button& button) {
  button.userClick();
}
void click(CheckBox& box) {
  box.userClick();
}
void click(OptionButton& option) {
  option.userClick();
}

void doubleClick(OptionButton& option) {
  option.userClick();
  option.userDoubleClick();
}

void click(ListBox& list, int line) {
  list.userSelect(line);
}

void doubleClick(ListBox& list, int line) {
  list.userSelect(line);
  list.userDoubleClick(line);
}

void choose(ComboBox& box, int line) {
  box.userSelect(line);
}
void choose(TabStrip& strip, int page) {
  strip.userTab(page);
}
void spinUp(SpinButton& spin) {
  spin.userSpin(true);
}
void spinDown(SpinButton& spin) {
  spin.userSpin(false);
}
void press(Form& form, Key key) {
  form.userKey(key);
}
void press(Navigator& navigator, Navigator::Arrow arrow) {
  navigator.userPress(arrow);
}
void click(MenuItem& item) {
  item.userClick();
}
void click(Toolbar& toolbar, const std::string& key) {
  toolbar.userClick(key);
}
void close(Form& form) {
  form.userClose();
}

}  // namespace nautrel
