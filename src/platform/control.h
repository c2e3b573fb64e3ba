// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace nautrel {

class Form;
using Event = std::function<void()>;

inline void raiseEvent(const Event& event) {
  if (event) event();
}

/// What all controls of a window have in common. A control belongs to its form from its birth to
/// its end; its events are raised synchronously, by user actions and by assignments alike.
class Control {
 public:
  Control(Form& form, std::string name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  Form& form() const { return form_; }

  bool enabled() const { return enabled_; }
  /// Disabling or hiding the control that has the focus moves the focus on in tab order.
  void setEnabled(bool enabled);
  bool visible() const { return visible_; }
  void setVisible(bool visible);
  /// Whether it can be seen: itself visible, and so is all that holds it, on a page in front.
  bool shows() const;

  /// Gives it the focus by rule. Raises 5 if it is hidden or disabled, or its window not shown
  /// yet; on a page that is behind it does nothing.
  void SetFocus();
  bool hasFocus() const;

  /// What a pointer that rests on it is told, and a screen reader: of a disabled control, why.
  const std::string& hint() const { return hint_; }
  void setHint(std::string hint);

  /// Asks for a repaint while a long operation runs; the look takes it in time slices.
  void Refresh();

  virtual bool takesFocus() const { return false; }
  bool canTakeFocus() const { return takesFocus() && enabled_ && shows(); }
  bool tabStop() const { return tabStop_; }
  void setTabStop(bool tabStop) { tabStop_ = tabStop; }

  /// Whether Alt and the character mean this control, by the & in what is written on it.
  virtual bool answersAccessKey(std::string_view /*character*/) const { return false; }
  /// What it does then; a whole user action.
  virtual void userAccess() {}

  /// Puts it into a frame, picture box or tab page.
  void setContainer(const Control& container, int page = 0);
  const Control* container() const { return container_; }
  int page() const { return page_; }
  virtual bool showsPage(int /*page*/) const { return true; }

  Event GotFocus;
  Event LostFocus;

 protected:
  /// Tells the look that there is something new to show.
  void changed();
  /// Moves the focus here as a press by the user does; false if a rule took it elsewhere.
  bool takeFocus();

 private:
  Form& form_;
  std::string name_;
  std::string hint_;
  const Control* container_ = nullptr;
  int page_ = 0;
  bool enabled_ = true;
  bool visible_ = true;
  bool tabStop_ = true;
};

}  // namespace nautrel
