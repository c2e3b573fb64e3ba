// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/Form1.h"

#include "shell/FrameForm.h"
#include "shell/Shell.h"

namespace nautrel {

Form1::Form1(Shell& app)
    : Form(app, "Form1", {.caption = "Startup", .width = 8400, .height = 5100, .child = false}),
      app_(app) {
  Timer1.Fires = [this] { Timer1_Timer(); };
}

void Form1::Form_Load() {
  const auto screen = desktop().screen();
  setTop(screen.height / 2 - Height() / 2);
  setLeft(screen.width / 2 - Width() / 2);
}

void Form1::Timer1_Timer() {
  Timer1.setEnabled(false);
  app_.MDIForm1().Show();
  Unload();
}

}  // namespace nautrel
