// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/ExchangeForm.h"

#include "companion/Companion.h"

namespace nautrel::exchange {

ExchangeForm::ExchangeForm(Companion& app)
    : Form(app, "ExchangeForm", {.caption = "Exchange dives", .width = 11400, .height = 8400}),
      In(*this, app),
      Out(*this, app),
      Care(*this, app),
      app_(app) {
  int page = 0;
  for (const auto& controls : {In.controls(), Out.controls(), Care.controls()}) {
    for (auto* control : controls) control->setContainer(Pages, page);
    ++page;
  }
  Pages.Click = [this] { Pages_Click(); };
  Care.Replaced = [this] { In.forget(); };
  Close.Click = [this] { Close_Click(); };
  Close.setCancel();
}

void ExchangeForm::Form_Load() {
  Place.setCaption("Logbook: " + app_.logbook());
  In.load();
  Out.load();
  Care.load();
  Pages_Click();
}

// Enter does what the page in front is for.
void ExchangeForm::Pages_Click() {
  Button* const doing[] = {&In.TakeOver, &Out.WriteFile, &Care.CheckNow};
  doing[Pages.Tab()]->setDefault(true);
  if (Pages.Tab() == 1) Out.load();
  if (Pages.Tab() == 2) Care.load();
}

void ExchangeForm::Close_Click() {
  if (In.isUnderWay() && MsgBox("The dives of '" + fileNameOf(In.FileName.text()) +
                                    "' are not taken over yet. Close all the same?",
                                kAskNo) != kYes)
    return;
  desktop().end();
}

void ExchangeForm::userDrop(const std::string& path) {
  program().handle([&] {
    if (!enabled() || !visible()) return;
    Pages.setTab(0);
    Pages_Click();
    In.open(path);
  });
}

void ExchangeForm::userLeave() {
  program().handle([this] { Close_Click(); });
}

}  // namespace nautrel::exchange
