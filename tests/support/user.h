// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string_view>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/frame.h"

namespace nautrel {

/// A person at the program. What cannot be done at the window as it stands, such as clicking a
/// disabled button, does nothing there, as for a person.
/// @{

/// Goes to the box as by a click, then types key by key into whatever has the focus.
void type(TextBox& box, std::string_view text);
void type(ComboBox& box, std::string_view text);
/// Types key by key into whatever has the focus.
void typeOn(Form& form, std::string_view text);
/// Pastes over the selection.
void paste(TextBox& box, std::string_view text);
/// Empties the box by keys.
void clear(TextBox& box);
void focus(Control& control);

void click(Button& button);
void click(CheckBox& box);
void click(OptionButton& option);
void doubleClick(OptionButton& option);
void click(ListBox& list, int line);
void doubleClick(ListBox& list, int line);
void choose(ComboBox& box, int line);
void choose(TabStrip& strip, int page);
void spinUp(SpinButton& spin);
void spinDown(SpinButton& spin);
void press(Form& form, Key key);
void press(Navigator& navigator, Navigator::Arrow arrow);
void click(MenuItem& item);
void click(Toolbar& toolbar, const std::string& key);
void close(Form& form);
/// @}

}  // namespace nautrel
