// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/GraphForm.h"

#include <utility>

#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"

namespace nautrel {

GraphForm::GraphForm(Shell& app, std::string name, Form::Design design, Chart::Design chart,
                     std::string pictureFile)
    : Form(app, std::move(name), std::move(design)),
      MSChart1(*this, "MSChart1", std::move(chart)),
      CommonDialog1(app.desktop(), {.title = "Diagramm speichern unter",
                                    .filter = "*.wmf|*.wmf",
                                    .fileName = std::move(pictureFile)}),
      app_(app) {
  Command2.setDefault(true);
  Command2.setCancel();
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
}

void GraphForm::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  fill();
}

void GraphForm::Command1_Click() {
  MSChart1.EditCopy();
  MsgBox("The graph and the data was copied to clipboard.");
}

void GraphForm::Command2_Click() {
  Unload();
}

// The object that would draw the chart into the chosen file was never made, and the failure of that
// is passed over: whatever name is chosen, no file comes of it.
void GraphForm::DiagrammSpeichern() {
  CommonDialog1.setFlags(6);
  resumeNext([&] { CommonDialog1.ShowSave(); });
}

}  // namespace nautrel
