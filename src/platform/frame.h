// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace nautrel {

/// One command of a menu.
class MenuItem : public Control {
 public:
  /// `shortcut` is written as on the menu: "Ctrl+P", "F1", or nothing.
  MenuItem(Form& form, std::string name, std::string caption, std::string shortcut = {});
  const std::string& caption() const { return caption_; }
  const std::string& shortcut() const { return shortcut_; }

  Event Click;
  void userClick();

 private:
  std::string caption_;
  std::string shortcut_;
};

/// A menu of the bar, or, if it is not visible, a context menu that a rule pops up.
class Menu : public Control {
 public:
  Menu(Form& form, std::string name, std::string caption, bool visible = true);
  const std::string& caption() const { return caption_; }
  /// The items in order; a null stands for a separator.
  const std::vector<MenuItem*>& items() const { return items_; }
  void setItems(std::vector<MenuItem*> items) { items_ = std::move(items); }

 private:
  std::string caption_;
  std::vector<MenuItem*> items_;
};

/// A place of a toolbar; without a key it is a separator.
struct ToolbarButton {
  std::string key = {};
  std::string toolTip = {};
  bool enabled = true;
};

/// A row of buttons, addressed by their keys.
class Toolbar : public Control {
 public:
  Toolbar(Form& form, std::string name, std::vector<ToolbarButton> buttons);
  const std::vector<ToolbarButton>& buttons() const { return buttons_; }
  /// A key that is not there is none.
  void setButtonEnabled(std::string_view key, bool enabled);

  std::function<void(const std::string& key)> ButtonClick;
  void userClick(const std::string& key);

 private:
  std::vector<ToolbarButton> buttons_;
};

/// Five panels: the states of Caps Lock and Insert, a text, the date and the time. All but the
/// text are kept by the look.
class StatusBar : public Control {
 public:
  struct Panel {
    std::string text = {};
    std::string toolTip = {};
  };
  StatusBar(Form& form, std::string name, std::array<Panel, 5> panels);
  const std::array<Panel, 5>& panels() const { return panels_; }
  /// Panels count from 1.
  const std::string& panelText(int panel) const;
  void setPanelText(int panel, std::string text);

 private:
  std::array<Panel, 5> panels_;
};

}  // namespace nautrel
