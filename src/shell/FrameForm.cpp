// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/FrameForm.h"

namespace nautrel {

FrameForm::FrameForm(Program& program, std::string name, Design design)
    : Form(program, std::move(name), std::move(design)),
      StatusBar1(*this, "StatusBar1",
                 {{{"Caps Lock", "Zeigt an, ob \"nur Großschreibung\" gewählt ist"},
                   {"Insert", "Zeigt an, ob die Einfügen-Taste gedrückt ist"},
                   {},
                   {},
                   {}}}) {
  Picture1.holds({&ProgressBar1}).setVisible(false);
}

void FrameForm::setMousePointer(int pointer) {
  mousePointer_ = pointer;
  notifyLook();
}

}  // namespace nautrel
