// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form2.h"

#include "platform/errors.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"

namespace nautrel {
namespace {

constexpr double kLastButOneNumber = 9998;

}  // namespace

Form2::Form2(Shell& app)
    : DiveEntryForm(app, "Form2", {.caption = "Insert dive", .width = 7200, .height = 6300},
                    {.repDive = "&Rep.-dive",
                     .pathLength = 255,
                     .severalInfo = "Several Info",
                     .linkedGraphic = "Linked graphic"}) {
  Command1.setCaption("OK, &next");
  Command1.setDefault(true);
  Command3.setCancel();
  SSTab1.pageHolds(0, {&Check1, &Check2, &Check3, &Check4, &Check5, &Command4});
  setTabEnd({&Command1, &Command2, &Command3, &Check2, &Check3, &Check4, &Check1, &Check5,
             &Command4, &SSTab1, &Text1});
  Text1.setTabStop(false);
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
}

void Form2::edited() {
  Text20.setText("geändert");
}

void Form2::Form_Load() {
  Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  auto rows = app_.openLogbook({"Nr"});
  resumeNext([&] { rows.MoveLast(); });
  resumeNext([&] { Text1.setText(text(rows.Fields("Nr").number(locale()) + 1)); });
  resumeNext([&] { app_.Modul1().LogbuchPruefen(); });
  if (app_.Modul1().LogbuchLeer) return;
  const auto full = [&] {
    const auto last = rows.Fields("Nr");
    return !last.isNull() && last.number(locale()) > kLastButOneNumber;
  };
  if (!trueOrFails(full)) return;
  MsgBox(
      "The last dive number is over 9998. You could not enter more than 9999 dives. "
      "Please select 'Sort logbook' and enter a lower start number. ");
  Unload();
}

void Form2::Speichern() {
  auto rows = app_.openLogbook();
  rows.AddNew();
  eachColumn(
      *this,
      [&](const DiveColumn& column, TextBox& box) { rows.setField(column.ordinal, box.text()); },
      [&](const DiveColumn& column, auto& flag) {
        if (flag.on()) rows.setField(column.ordinal, true);
      });
  rows.Update();
  rows.Close();
  app_.Modul1().StatusAktualisieren();
}

void Form2::Command1_Click() {
  if (complete()) {
    Speichern();
    if (number(Text1.text()) > kLastButOneNumber) {
      MsgBox(
          "You could not insert more than 9999 dives. Please select 'Sort logbook' and enter a "
          "lower start number. This dive will be saved.");
      Text20.setText("");
      return Unload();
    }
    prepareNextDive();
  }
  Text20.setText("");
}

// The picture stays on show though its path is emptied.
void Form2::prepareNextDive() {
  Text1.setText(text(number(Text1.text()) + 1));
  eachColumn(*this, [this](const DiveColumn& column, TextBox& box) {
    const auto& [kept, mark] = column.next;
    if (mark != nullptr ? !(this->*mark).on() : !kept) box.setText("");
  });
}

// With a required box empty the window closes all the same and the input is dropped.
void Form2::Command2_Click() {
  if (complete()) {
    Speichern();
    Text20.setText("");
  }
  Unload();
}

void Form2::Command3_Click() {
  Unload();
}

// The focus walks through the boxes so that their own rules pad day and month.
void Form2::Command4_Click() {
  for (auto* box : {&Text5, &Text6, &Text7}) box->setText("");
  const auto today = desktop().now();
  Text5.setText(text(today.day));
  Text6.setText(text(today.month));
  Text7.setText(text(today.year));
  for (auto* box : {&Text5, &Text6, &Text7, &Text8}) box->SetFocus();
}

void Form2::Form_Unload() {
  auto& shared = app_.Modul1();
  shared.LogbuchPruefen();
  if (!shared.LogbuchLeer) shared.MenuesFreigeben();
}

}  // namespace nautrel
