// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <utility>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/frame.h"

namespace nautrel {

/// The main window as the windows in it know it: its measures, its pointer, and how it tells of
/// state and progress.
class FrameForm : public Form {
 public:
  FrameForm(Program& program, std::string name, Design design);

  /// 0 default, 11 hourglass.
  int MousePointer() const { return mousePointer_; }
  void setMousePointer(int pointer);
  /// Enables or disables the menu items and toolbar buttons that need dives.
  virtual void gateCommands(bool enabled) = 0;
  /// Notes the window that the start opens by itself.
  void setStartWindow(int number) { startWindow_ = number; }

  /// View, edit and delete a record dive of the statistic.
  Menu Menü8{*this, "Menü8", "Kontexmenü2", false};
  StatusBar StatusBar1;
  PictureBox Picture1{*this, "Picture1"};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};

 protected:
  int takeStartWindow() { return std::exchange(startWindow_, 0); }

 private:
  int mousePointer_ = 0;
  int startWindow_ = 0;
};

}  // namespace nautrel
