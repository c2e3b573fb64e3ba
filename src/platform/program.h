// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/form.h"
#include "platform/look.h"

namespace nautrel {

/// The run of the program: its windows by number, the edge of its event loop, its end.
class Program {
 public:
  explicit Program(Desktop& desktop);
  virtual ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Desktop& desktop() { return desktop_; }
  /// Without looks the program runs unseen, as in tests.
  void setLooks(Looks* looks) { looks_ = looks; }

  /// A whole user action: failures that no rule has stopped end the program here, and when the
  /// outermost action has ended, what it wrote is brought onto the disk and onto the screen.
  template <class Action>
  void handle(Action&& action) {
    if (desktop_.ended()) return;
    const Running running(*this);
    desktop_.atEdge(action);
  }
  bool handling() const { return depth_ > 0; }

  bool loaded(int number) const { return windows_.contains(number); }
  /// The window of that number if it is loaded; never makes one.
  Form* ifLoaded(int number) const;
  /// Unloads the window if it is loaded; its Form_Unload runs as a root.
  void unload(int number);
  /// The child window in front; null if there is none.
  Form* activeForm() const { return front_; }
  /// The child windows that show, from back to front.
  const std::vector<Form*>& stack() const { return stack_; }

  /// The room that the main window has for its children, in twips; 0 while nobody has told it.
  struct Area {
    double width = 0;
    double height = 0;
  };
  const Area& area() const { return area_; }
  void setArea(const Area& area) { area_ = area; }

  /// Closes the child window in front.
  void userCloseWindow();
  /// Brings the next child that is not minimized to the front, in a circle.
  void userNextWindow(int direction);

 protected:
  /// The window of that number, made for `owner` and loaded if it is not there.
  template <class Window, class Owner>
  Window& window(int number, Owner& owner) {
    if (auto it = windows_.find(number); it != windows_.end())
      return static_cast<Window&>(*it->second);
    auto made = std::make_unique<Window>(owner);
    auto& form = *made;
    load(number, std::move(made));
    return form;
  }

  /// Writes through to the disk; costs nothing when nothing was written.
  virtual void settle() {}
  void destroyWindows();

 private:
  friend class Form;
  void load(int number, std::unique_ptr<Form> form);
  void bringToFront(Form& form);
  void giveWay(const Form& form);
  void leaveStack(const Form& form);
  void asRoot(const std::function<void()>& procedure);
  void leave();

  /// An action under way; at the end of the outermost one the program comes to rest.
  class Running {
   public:
    explicit Running(Program& program) : program_(program) { ++program_.depth_; }
    ~Running() { program_.leave(); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

   private:
    Program& program_;
  };

  Desktop& desktop_;
  Looks* looks_ = nullptr;
  int depth_ = 0;
  Area area_;
  Form* front_ = nullptr;
  std::vector<Form*> stack_;
  std::map<int, std::unique_ptr<Form>> windows_;
  std::vector<std::unique_ptr<Form>> unloaded_;
};

}  // namespace nautrel
