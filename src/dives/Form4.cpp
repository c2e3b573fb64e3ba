// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form4.h"

#include "dives/jump.h"
#include "platform/errors.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"
#include "shell/return_to_search.h"
#include "store/contract.h"

namespace nautrel {

Form4::Form4(Shell& app)
    : DiveEntryForm(app, "Form4", {.caption = "Edit dives", .width = 7200, .height = 6900},
                    {.repDive = "&Rep.- dive",
                     .pathLength = 0,
                     .severalInfo = "Serveral Info",
                     .linkedGraphic = "Linked grafic"}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Logbuch) {
  Command1.setCaption("&Save Changes");
  Command1.setDefault(true);
  Command3.setCancel();
  SSTab1.pageHolds(3, {&Image5});
  setTabEnd({&Data1, &Command4, &Command1, &Command2, &Command3, &SSTab1});
  eachColumn(*this, [](auto&, TextBox& box) {
    if (box.locked()) return;
    box.GotFocus = [&box, before = box.GotFocus] {
      raiseEvent(before);
      box.selectAll();
    };
  });
  Data1.Reposition = [this] { Data1_Reposition(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
}

void Form4::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
}

void Form4::Leeren() {
  eachColumn(
      *this, [](auto&, TextBox& box) { box.setText(""); },
      [](auto&, auto& flag) { flag.setOn(false); });
  Image4.setPicture(Image5.picture());
}

// The row runs through the rules of the boxes, as typing does.
void Form4::Data1_Reposition() {
  Leeren();
  showRow();
  auto& dive = Data1.Recordset();
  resumeNext(
      [&] { Image4.setPicture(desktop().LoadPicture(dive.Fields(Feld::Grafik).text(locale()))); });
  resumeNext([&] { setCaption("Edit dives - Number " + dive.Fields(Feld::Nr).joined(locale())); });
  resumeNext([&] { Text2.SetFocus(); });
}

void Form4::showRow() {
  const auto& dive = Data1.Recordset();
  eachColumn(
      *this,
      [&](const DiveColumn& column, TextBox& box) {
        resumeNext([&] { box.setText(dive.Fields(column.ordinal).text(locale())); });
      },
      [&](const DiveColumn& column, auto& flag) {
        if (trueOrFails([&] { return dive.Fields(column.ordinal).isYes(); })) flag.setOn(true);
      });
}

void Form4::Speichern() {
  auto& dive = Data1.Recordset();
  dive.Edit();
  eachColumn(
      *this,
      [&](const DiveColumn& column, TextBox& box) {
        if (column.ordinal != Feld::Nr) dive.setField(column.ordinal, box.text());
      },
      [&](const DiveColumn& column, auto& flag) { dive.setField(column.ordinal, flag.on()); });
  dive.Update();
}

void Form4::Command1_Click() {
  if (!complete()) return;
  Speichern();
  auto& last = app_.Modul1().LetzteNummer;
  {
    auto database = app_.openDatabase();
    auto dives = database.OpenRecordset(Tabelle::Logbuch, {"Nr"});
    dives.MoveLast();
    last = dives.Fields(Feld::Nr);
  }
  if (!last.isNull() && number(Text1.text()) < last.number(locale())) Data1.Recordset().MoveNext();
}

// With a required box empty the window stays open with the input.
void Form4::Command2_Click() {
  if (!complete()) return;
  Speichern();
  Unload();
}

void Form4::Command3_Click() {
  Unload();
}

void Form4::Command4_Click() {
  const auto answer = askForDive(app_);
  try {
    auto& dives = Data1.Recordset();
    if (isLastDive(app_, answer)) return dives.MoveLast();
    if (const auto dive = diveInRange(app_, answer)) moveToDive(*this, *dive);
    Text2.SetFocus();
  } catch (const RunTimeError&) {
  }
}

double Form4::currentNumber() {
  return Data1.Recordset().Fields(Feld::Nr).number(locale());
}

void Form4::Form_Unload() {
  returnToSearch(app_);
}

}  // namespace nautrel
