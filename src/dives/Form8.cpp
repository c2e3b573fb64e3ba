// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form8.h"

#include "platform/number_boxes.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"
#include "store/contract.h"
#include "store/numbering.h"

namespace nautrel {
namespace {

constexpr int kFirstNumber = 1;
constexpr int kLastNumber = 9999;

}  // namespace

Form8::Form8(Shell& app)
    : Form(app, "Form8", {.caption = "Sort logbook", .width = 5400, .height = 3000}), app_(app) {
  Frame1.holds({&Text1, &SpinButton1});
  Command2.setCancel();
  Text1.Change = [this] { keepWholeNumber(Text1, kFirstNumber, locale()); };
  const SpinRange steps{.empty = "1", .least = kFirstNumber, .most = kLastNumber};
  SpinButton1.SpinUp = [this, steps] { spinUp(Text1, steps, locale()); };
  SpinButton1.SpinDown = [this, steps] { spinDown(Text1, steps, locale()); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
}

void Form8::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
}

int Form8::countDives() {
  auto database = app_.openDatabase();
  return database.OpenRecordset(Tabelle::Logbuch, {"Nr"}).RecordCount();
}

std::string Form8::comingNumbers() const {
  const double start = number(Text1.text());
  return text(start) + ", " + text(start + 1) + ", " + text(start + 2) + ",...";
}

void Form8::Command1_Click() {
  const int count = countDives();
  // The texts are compared, not the numbers: beside 8000 dives a start at 300 is refused and one at
  // 1500 is not.
  if (Text1.text() > std::to_string(kLastNumber + 1 - count)) {
    MsgBox("The first dive number must be lower than " + std::to_string(kLastNumber + 2 - count));
    return;
  }
  if (Text1.isEmpty()) Text1.setText(text(kFirstNumber));
  if (MsgBox("Renumber all dives?", kAskNo, comingNumbers()) != kYes) return;
  renumberAll();
  app_.Modul1().StatusAktualisieren();
  MsgBox("Ready!");
}

void Form8::renumberAll() {
  auto& shared = app_.Modul1();
  const Hourglass wait(app_.MDIForm1());
  renumber(app_.workspace(), app_.databasePath(), number(Text1.text()), [&](int step, int count) {
    if (step > 0) return app_.MDIForm1().ProgressBar1.setValue(step);
    shared.FortschrittMaximum = count;
    shared.FortschrittAnzeigen();
  });
  shared.FortschrittBeenden();
}

void Form8::Command2_Click() {
  Unload();
}

}  // namespace nautrel
