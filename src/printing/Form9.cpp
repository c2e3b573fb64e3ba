// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/Form9.h"

#include "platform/errors.h"
#include "platform/number_boxes.h"
#include "printing/dive_list.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"

namespace nautrel {
namespace {

constexpr int kHideReadOnly = 4;
constexpr double kMostCopies = 9999;

const RangeMessages kMessages = {"First dive-# not valid", "Last dive-# not valid",
                                 "First dive-# must be lower than last dive-#"};

}  // namespace

Form9::Form9(Shell& app)
    : Form(app, "Form9", {.caption = "Print Dive List", .width = 5400, .height = 3300}),
      CrystalReport1(app.desktop(), "Nautrel 2.0 print dive list"),
      CommonDialog1(app.desktop(),
                    {.title = "Save divelist to", .filter = "*.*|*.*", .fileName = "List1.txt"}),
      app_(app) {
  Command4.setCancel();
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  bindBoxes();
}

// Down stops at 1 and not at the logbook's first number, unlike up at its last.
void Form9::bindBoxes() {
  const auto bind = [this](TextBox& box, SpinButton& arrows, const Value& most) {
    box.Change = [this, &box] { keepWholeNumber(box, 1, locale()); };
    const auto range = [&most] { return SpinRange{"1", 1, most}; };
    arrows.SpinUp = [this, &box, range] { spinUp(box, range(), locale()); };
    arrows.SpinDown = [this, &box, range] { spinDown(box, range(), locale()); };
  };
  static const Value mostCopies(kMostCopies);
  bind(Text1, SpinButton1, app_.Modul1().LetzteNummer);
  bind(Text2, SpinButton2, app_.Modul1().LetzteNummer);
  bind(Text3, SpinButton3, mostCopies);
}

void Form9::Form_Load() {
  Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  CrystalReport1.setReportFileName(app_.besideExecutable("Liste.rpt"));
  auto& shared = app_.Modul1();
  shared.NummernLesen();
  Text1.setText(shared.ErsteNummer.joined(locale()));
  Text2.setText(shared.LetzteNummer.joined(locale()));
}

void Form9::Überprüfen() {
  const auto& shared = app_.Modul1();
  Text4.setText("");
  Text4.setText(
      checkRange(desktop(), Text1, Text2, shared.ErsteNummer, shared.LetzteNummer, kMessages));
}

bool Form9::rangeIsGood() {
  Überprüfen();
  return Text4.isEmpty();
}

void Form9::runReport(int destination) {
  CrystalReport1.setSelectionFormula("ToNumber ({Logbuch.Nr}) in " + text(number(Text1.text())) +
                                     " to " + text(number(Text2.text())));
  CrystalReport1.setDestination(destination);
  CrystalReport1.Action(1);
}

void Form9::Command1_Click() {
  if (rangeIsGood()) runReport(Report::kPreview);
}

void Form9::Command2_Click() {
  if (Text3.isEmpty()) Text3.setText("1");
  if (!rangeIsGood()) return;
  const auto range = Text1.text() + " to " + Text2.text();
  if (MsgBox("Print list now?", kAskNo, "Print dive list (" + range + ")") == kYes)
    runReport(Report::kPrinter);
}

void Form9::Command3_Click() {
  if (!rangeIsGood() || !chooseFile()) return;
  writeList();
  MsgBox("The list was saved as " + CommonDialog1.FileName() +
         ". Deactivitate in your texteditor 'wordwrap' to see best result.");
}

bool Form9::chooseFile() {
  CommonDialog1.setFlags(kHideReadOnly);
  try {
    CommonDialog1.ShowSave();
  } catch (const RunTimeError& failure) {
    return failure.number != DialogCancelled;
  }
  return true;
}

void Form9::writeList() {
  const int count = toInt32(number(Text2.text()) - number(Text1.text()) + 1);
  writeDiveList(CommonDialog1.FileName(),
                {app_.databasePath(), Text1.text(), count, desktop().now()}, app_.workspace(),
                locale());
}

void Form9::Command4_Click() {
  Unload();
}

}  // namespace nautrel
