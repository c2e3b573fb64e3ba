// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/frame.h"

#include "platform/errors.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {

MenuItem::MenuItem(Form& form, std::string name, std::string caption, std::string shortcut)
    : Control(form, std::move(name)),
      caption_(std::move(caption)),
      shortcut_(std::move(shortcut)) {}

void MenuItem::userClick() {
  form().program().handle([this] {
    if (enabled()) raiseEvent(Click);
  });
}

Menu::Menu(Form& form, std::string name, std::string caption, bool visible)
    : Control(form, std::move(name)), caption_(std::move(caption)) {
  setVisible(visible);
}

Toolbar::Toolbar(Form& form, std::string name, std::vector<ToolbarButton> buttons)
    : Control(form, std::move(name)), buttons_(std::move(buttons)) {}

void Toolbar::setButtonEnabled(std::string_view key, bool enabled) {
  for (auto& button : buttons_)
    if (button.key == key) button.enabled = enabled;
  changed();
}

void Toolbar::userClick(const std::string& key) {
  form().program().handle([&] {
    for (const auto& button : buttons_)
      if (button.key == key && button.enabled && ButtonClick) return ButtonClick(key);
  });
}

StatusBar::StatusBar(Form& form, std::string name, std::array<Panel, 5> panels)
    : Control(form, std::move(name)), panels_(std::move(panels)) {}

const std::string& StatusBar::panelText(int panel) const {
  return panels_.at(static_cast<std::size_t>(panel - 1)).text;
}

void StatusBar::setPanelText(int panel, std::string text) {
  auto& held = panels_.at(static_cast<std::size_t>(panel - 1)).text;
  if (held == text) return;
  held = std::move(text);
  changed();
}

}  // namespace nautrel
