// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form5.h"

#include <utility>

#include "dives/dive_columns.h"
#include "dives/jump.h"
#include "platform/errors.h"
#include "platform/number_boxes.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"
#include "shell/return_to_search.h"
#include "store/contract.h"
#include "store/numbering.h"

namespace nautrel {
namespace {

constexpr int kRangePage = 1;

const RangeMessages kMessages{.first = "First dive-# is not valid",
                              .last = "Last dive-# is not valid",
                              .order = "First dive-# must be lower than last dive-#"};

constexpr const char* kGapWarning =
    "Achtung: Wenn sie nicht neu durchnumerieren entsteht eine Lücke in der "
    "Tauchgangnumerierung. Sie haben jedoch die Möglichkeit die Funktion 'neu durchnumerieren' "
    "auch später aus dem Menü Datei auszuführen.";

}  // namespace

Form5::Form5(Shell& app)
    : Form(app, "Form5", {.caption = "Delete dive", .width = 6600, .height = 5100}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Logbuch),
      app_(app) {
  Frame1.holds({&Text6, &SpinButton1, &Text7, &SpinButton2, &Label10});
  SSTab1.pageHolds(0, {&Text1, &Text2, &Text3, &Text4, &Text5, &Text8, &Data1, &Command1, &Command2,
                       &Command3, &Check1});
  SSTab1.pageHolds(kRangePage, {&Frame1, &Check2, &Command4, &Command5});
  setTabOrder({&Data1, &Command2, &Command1, &Command3, &Text6, &SpinButton1, &Text7, &SpinButton2,
               &Command4, &Command5, &SSTab1});
  for (auto* check : {&Check1, &Check2}) check->setVisible(false);
  Command3.setDefault(true);
  Command3.setCancel();
  Data1.Reposition = [this] { Data1_Reposition(); };
  SSTab1.Click = [this] { SSTab1_Click(); };
  Check1.Click = [this] { Check1_Click(); };
  Check2.Click = [this] { Check2_Click(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  bindRange();
}

void Form5::bindRange() {
  const std::pair<TextBox*, SpinButton*> bounds[] = {{&Text6, &SpinButton1},
                                                     {&Text7, &SpinButton2}};
  const auto steps = [this] {
    const auto& shared = app_.Modul1();
    return SpinRange{
        .empty = shared.ErsteNummer, .least = shared.ErsteNummer, .most = shared.LetzteNummer};
  };
  for (const auto& [bound, spin] : bounds) {
    bound->Change = [this, box = bound] { keepWholeNumber(*box, 1, locale()); };
    spin->SpinUp = [this, steps, box = bound] { spinUp(*box, steps(), locale()); };
    spin->SpinDown = [this, steps, box = bound] { spinDown(*box, steps(), locale()); };
  }
}

void Form5::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
}

void Form5::Leeren() {
  for (auto* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text8}) box->setText("");
}

void Form5::Data1_Reposition() {
  Leeren();
  const auto& dive = Data1.Recordset();
  const auto show = [&](TextBox& box, int column) {
    resumeNext([&] { box.setText(dive.Fields(column).text(locale())); });
  };
  show(Text1, Feld::Nr);
  show(Text2, Feld::Land);
  show(Text3, Feld::Ort);
  show(Text4, Feld::Platz);
  resumeNext([&] { Text5.setText(joinedDate(dive, locale())); });
  show(Text8, Feld::Buddy);
}

void Form5::SSTab1_Click() {
  if (SSTab1.Tab() != kRangePage) return;
  app_.Modul1().NummernLesen();
  showRange();
}

void Form5::showRange() {
  const auto& shared = app_.Modul1();
  Label10.setCaption("max from dive-# " + shared.ErsteNummer.joined(locale()) + " to # " +
                     shared.LetzteNummer.joined(locale()));
}

bool Form5::confirmed(const std::string& question, const std::string& title) {
  if (MsgBox(question, kAskCritical, title) == kYes) return true;
  MsgBox("Aborted");
  return false;
}

// Afterwards the window stands on the last dive, with the number it had before the renumbering.
void Form5::Command1_Click() {
  auto& shared = app_.Modul1();
  const auto onShow = Data1.Recordset().Fields(Feld::Nr).joined(locale());
  if (!confirmed("Delete this dive?", "Dive number " + onShow + " delete")) return;
  Data1.Recordset().Delete();
  Data1.Refresh();
  resumeNext([&] { Data1.Recordset().MoveLast(); });
  if (Check1.on()) resumeNext([&] { Nummerieren(); });
  resumeNext([&] { shared.StatusAktualisieren(); });
  resumeNext([&] { MsgBox("Dive deleted"); });
  closeIfEmpty();
}

void Form5::Command4_Click() {
  auto& shared = app_.Modul1();
  Überprüfen();
  if (!Text9.isEmpty()) return;
  const auto range = Text6.text() + " to " + Text7.text();
  if (!confirmed("Dive number " + range + " really delete?", "Delete" + range)) return;
  deleteRange();
  Data1.Refresh();
  resumeNext([&] { Data1.Recordset().MoveLast(); });
  if (Check2.on()) resumeNext([&] { Nummerieren(); });
  resumeNext([&] { shared.StatusAktualisieren(); });
  resumeNext([&] { shared.NummernLesen(); });
  resumeNext([&] { showRange(); });
  resumeNext([&] { MsgBox("Dives deleted"); });
  closeIfEmpty();
}

// The first number is compared as text and the last one as a number, and a dive without a number is
// neither. A number that is missing runs off the last row, and that ends the program.
void Form5::deleteRange() {
  auto& dives = Data1.Recordset();
  const double last = number(Text7.text());
  const auto onFirst = [&] { return dives.Fields(Feld::Nr).joined(locale()) == Text6.text(); };
  const auto onLast = [&] {
    const auto stored = dives.Fields(Feld::Nr);
    return !stored.isNull() && stored.number(locale()) == last;
  };
  dives.MoveFirst();
  while (!onFirst()) dives.MoveNext();
  while (!onLast()) {
    dives.Delete();
    dives.MoveNext();
  }
  dives.Delete();
}

void Form5::closeIfEmpty() {
  auto& shared = app_.Modul1();
  resumeNext([&] { shared.LogbuchPruefen(); });
  if (shared.LogbuchLeer) Unload();
}

void Form5::Nummerieren() {
  renumber(app_.workspace(), app_.databasePath(), 1);
}

void Form5::Überprüfen() {
  auto& shared = app_.Modul1();
  shared.NummernLesen();
  Text9.setText(
      checkRange(desktop(), Text6, Text7, shared.ErsteNummer, shared.LetzteNummer, kMessages));
}

// The range test runs after the last dive has been reached, too, and then moves by nothing.
void Form5::Command2_Click() {
  const auto answer = askForDive(app_);
  try {
    auto& dives = Data1.Recordset();
    if (isLastDive(app_, answer)) dives.MoveLast();
    if (const auto dive = diveInRange(app_, answer)) moveToDive(*this, *dive);
  } catch (const RunTimeError&) {
  }
}

void Form5::Check1_Click() {
  warnOfGap(Check1);
}
void Form5::Check2_Click() {
  warnOfGap(Check2);
}

void Form5::warnOfGap(const CheckBox& renumbering) {
  if (!renumbering.on()) MsgBox(kGapWarning);
}

void Form5::Command3_Click() {
  Unload();
}
void Form5::Command5_Click() {
  Unload();
}

// The rows still hold the numbers of before the last renumbering.
double Form5::currentNumber() {
  return Data1.Recordset().FieldAfresh(Feld::Nr).number(locale());
}

// With the last dive the word search goes too; the other two searches come back.
void Form5::Form_Unload() {
  auto& shared = app_.Modul1();
  shared.LogbuchPruefen();
  if (shared.LogbuchLeer) {
    shared.MenuesSperren();
    if (shared.VonWortsuche) app_.unload(Windows::SearchWord);
  }
  returnToSearch(app_);
}

}  // namespace nautrel
