// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// The splash: a picture for 800 milliseconds, then the main window.
class Form1 : public Form {
 public:
  static constexpr int kNumber = Windows::Splash;
  explicit Form1(Shell& app);

  Timer Timer1{*this, "Timer1", 800};

  void Form_Load() override;
  void Timer1_Timer();

 private:
  Shell& app_;
};

}  // namespace nautrel
