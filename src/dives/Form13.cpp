// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form13.h"

#include "platform/errors.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"
#include "store/contract.h"

namespace nautrel {
namespace {

// What the window's frame takes of it, in twips.
constexpr double kFrameHeight = 400;
constexpr double kFrameWidth = 140;

}  // namespace

Form13::Form13(Shell& app)
    : Form(app, "Form13", {.caption = "Logbook Table", .width = 11400, .height = 7200}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Logbuch),
      app_(app) {
  Data1.setVisible(false);
  MSFlexGrid1.setDataSource(Data1);
}

void Form13::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
}

// A minimized window leaves no room for a grid, which then stays as it is.
void Form13::Form_Resize() {
  resumeNext([&] { MSFlexGrid1.setHeight(Height() - kFrameHeight); });
  resumeNext([&] { MSFlexGrid1.setWidth(Width() - kFrameWidth); });
  MSFlexGrid1.Refresh();
}

}  // namespace nautrel
