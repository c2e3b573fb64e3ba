// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form3.h"

#include "dives/dive_columns.h"
#include "dives/jump.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"
#include "shell/return_to_search.h"
#include "store/contract.h"

namespace nautrel {

Form3::Form3(Shell& app)
    : Form(app, "Form3", {.caption = "View Logbook", .width = 8400, .height = 6300}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Logbuch),
      app_(app) {
  SSTab1.pageHolds(0, {&List1});
  SSTab1.pageHolds(2, {&Frame3, &Frame5});
  SSTab1.pageHolds(3, {&Image4, &Image5});
  placeColumns(*this, {nullptr, nullptr, &Frame3, &Frame5});
  setTabOrder({&List1, &Command1, &Command3, &SSTab1});
  Command3.setCancel();
  Data1.Reposition = [this] { Data1_Reposition(); };
  Data1.MouseDown = [this] { Data1_MouseDown(); };
  List1.Click = [this] { List1_Click(); };
  Command1.Click = [this] { Command1_Click(); };
  Command3.Click = [this] { Command3_Click(); };
}

void Form3::Form_Load() {
  Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
  fillList();
  app_.Modul1().ListeNachziehen = true;
  app_.Modul1().NummernLesen();
}

void Form3::fillList() {
  List1.Clear();
  auto rows = app_.openLogbook({"Nr"});
  for (; !rows.Eof(); rows.MoveNext()) List1.AddItem(rows.Fields(Feld::Nr).joined(locale()));
}

void Form3::Leeren() {
  eachColumn(
      *this, [](auto&, TextBox& box) { box.setText(""); },
      [](auto&, Label& word) { word.setCaption(""); },
      [](auto&, Image& image) { image.setVisible(false); });
  Image4.setPicture(Image5.picture());
}

void Form3::Data1_Reposition() {
  auto& shared = app_.Modul1();
  Leeren();
  showRow();
  resumeNext([&] {
    Image4.setPicture(desktop().LoadPicture(Data1.Recordset().Fields(Feld::Grafik).text(locale())));
  });
  // The caption shows the numbers as they stood at the read before this one.
  resumeNext([&] {
    setCaption("View Logbook (Dives " + shared.ErsteNummer.joined(locale()) + " to " +
               shared.LetzteNummer.joined(locale()) + ") - # " +
               Data1.Recordset().Fields(Feld::Nr).joined(locale()));
  });
  shared.NummernLesen();
  const bool follow = shared.ListeNachziehen;
  if (follow)
    resumeNext([&] {
      selectIfShown(toInt16(number(Text1.text()) - shared.ErsteNummer.number(locale())));
    });
  shared.ListeNachziehen = false;
}

// Of a pair that is Yes both ways the second word stands, since it is written last.
void Form3::showRow() {
  const auto& dive = Data1.Recordset();
  const auto isYes = [&](const DiveColumn& flag) {
    return trueOrFails([&] { return dive.Fields(flag.ordinal).isYes(); });
  };
  eachColumn(
      *this,
      [&](const DiveColumn& column, TextBox& box) {
        resumeNext([&] {
          box.setText(&box == &Text5 ? joinedDate(dive, locale())
                                     : dive.Fields(column.ordinal).text(locale()));
        });
      },
      [&](const DiveColumn& flag, Label& label) {
        if (isYes(flag)) label.setCaption(flag.words.view);
      },
      [&](const DiveColumn& flag, Image& image) {
        if (isYes(flag)) image.setVisible(true);
      });
}

void Form3::Data1_MouseDown() {
  app_.Modul1().ListeNachziehen = true;
}

void Form3::List1_Click() {
  if (following_) return;
  auto& rows = Data1.Recordset();
  if (List1.text() == app_.Modul1().LetzteNummer.joined(locale())) return rows.MoveLast();
  rows.Move(toInt32(number(List1.text()) - rows.Fields(Feld::Nr).number(locale())));
}

void Form3::Command1_Click() {
  const auto answer = askForDive(app_);
  try {
    auto& rows = Data1.Recordset();
    if (isLastDive(app_, answer))
      rows.MoveLast();
    else if (const auto dive = diveInRange(app_, answer))
      moveToDive(*this, *dive);
    selectByCount();
  } catch (const RunTimeError&) {
  }
}

// Counts from 1 and not from the first number: in a logbook that begins elsewhere the list does
// not follow a jump.
void Form3::selectByCount() {
  selectIfShown(toInt16(number(Text1.text()) - 1));
}

// With numbers out of order the line may be another dive's, and the way there and back without end.
void Form3::selectIfShown(int line) {
  if (List1.List(line) != Text1.text()) return;
  following_ = true;
  List1.setListIndex(line);
  following_ = false;
}

void Form3::Command3_Click() {
  Unload();
}

double Form3::currentNumber() {
  return Data1.Recordset().Fields(Feld::Nr).number(locale());
}

void Form3::Form_Unload() {
  returnToSearch(app_);
}

}  // namespace nautrel
