// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/desktop.h"

namespace nautrel {

class Button;
class FormLook;
class Program;

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };
enum class Key { Enter, Escape, Tab, BackTab, Backspace, Delete, Up, Down, Space };

/// A window without its look: its controls are its members, its handlers its procedures, and the
/// rules of focus, default and cancel button stand here, once for all windows.
class Form {
 public:
  /// What the window is before anything runs. Measures in twips.
  struct Design {
    std::string caption = {};
    double width = 6000;
    double height = 4500;
    bool child = true;  // stands in the main window's area
  };

  Form(Program& program, std::string name, Design design);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  Program& program() const { return program_; }

  /// Shows the window and gives the focus to the first control in tab order; brings it to the
  /// front if it shows already. Quietly does nothing on a window that has unloaded itself.
  void Show();
  void SetFocus();
  void Unload();
  bool loaded() const { return loaded_; }
  bool visible() const { return visible_; }
  bool isChild() const { return child_; }

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  bool enabled() const { return enabled_; }
  /// A disabled window takes no input at all.
  void setEnabled(bool enabled);
  WindowState windowState() const { return state_; }
  void setWindowState(WindowState state);

  /// Geometry in twips; a child's Left and Top count from the frame's client area. One that would
  /// put the title bar of a child out of that area becomes 0.
  double Left() const { return left_; }
  double Top() const { return top_; }
  double Width() const { return width_; }
  double Height() const { return height_; }
  void setLeft(double left);
  void setTop(double top);
  void setWidth(double width);
  void setHeight(double height);

  const std::vector<Control*>& controls() const { return controls_; }
  Control* control(std::string_view name) const;
  Control* activeControl() const { return active_; }
  Button* defaultButton() const { return default_; }
  /// The one that Enter presses now: the button that has the focus, else the default.
  Button* enterButton() const;

  /// Whether Enter belongs to the box that has the focus: no default button takes it there.
  bool wantsEnter() const;

  FormLook* look() const { return look_.get(); }

  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_Resize() {}
  /// Opens what is bound to the database, after Form_Load and before the window shows.
  void openDataControls();

  /// What the user does at the window. Each call is a whole user action.
  /// @{
  void userFocus(Control& control);
  void userKey(Key key);
  void userType(std::string_view text);
  /// Alt with a character: of those whose caption names it, the next one in tab order, beginning
  /// behind the focus. False if nobody here answers to it.
  bool userAccessKey(std::string_view character);
  bool answersAccessKey(std::string_view character) const;
  /// Turns the pages of the window, in a circle.
  void userTurnPage(int direction);
  void userClose();
  void userResized(double left, double top, double width, double height);
  void userState(WindowState state);
  /// Brings the window to the front. No control's focus event is raised: the focus is where it was
  /// left.
  void userActivated();
  /// @}

 protected:
  /// The order of the Tab key. Without it, it is the order of declaration.
  void setTabOrder(std::initializer_list<Control*> order);
  /// Moves these to the end of it.
  void setTabEnd(std::initializer_list<Control*> last);

  /// Shorthands of the windows for the door and the locale.
  /// @{
  Desktop& desktop() const;
  const Locale& locale() const;
  int MsgBox(const std::string& prompt, int style = 0,
             const std::string& title = kApplicationTitle);
  double number(std::string_view text) const;
  std::optional<double> tryNumber(std::string_view text) const;
  std::string text(double number) const;
  /// @}

  void notifyLook();

 private:
  double inSight(double edge, double room) const;

  friend class Control;
  friend class Button;
  friend class Program;

  void add(Control& control);
  void activate();
  Control* accessOwner(std::string_view character) const;
  void moveFocus(Control& target);
  void focusNext(const Control& from, int direction);
  void leaveIfUnfit(const Control& changed);

  Program& program_;
  std::string name_;
  std::string caption_;
  double left_ = 0;
  double top_ = 0;
  double width_;
  double height_;
  WindowState state_ = WindowState::Normal;
  const bool child_;
  bool enabled_ = true;
  bool loaded_ = false;
  bool visible_ = false;
  bool unloading_ = false;
  int number_ = 0;

  std::vector<Control*> controls_;
  std::vector<Control*> tabOrder_;
  Control* active_ = nullptr;
  bool arriving_ = false;
  unsigned focusMoves_ = 0;
  Button* default_ = nullptr;
  Button* cancel_ = nullptr;
  std::unique_ptr<FormLook> look_;
};

}  // namespace nautrel
