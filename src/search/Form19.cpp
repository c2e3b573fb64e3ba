// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/Form19.h"

#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "dives/jump.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"

namespace nautrel {

Form19::Form19(Shell& app)
    : Form(app, "Form19", {.caption = "found dives:", .width = 1500, .height = 6300}), app_(app) {
  List1.Click = [this] { List1_Click(); };
}

void Form19::Form_Load() {
  app_.Modul1().NummernLesen();
}

void Form19::List1_Click() {
  if (Text1.text() == kViewing) Anzeigen();
  if (Text1.text() == kEditing) Bearbeiten();
  if (Text1.text() == kDeleting) Löschen();
}

template <class RecordForm>
void Form19::jump(RecordForm& record) {
  if (List1.text() == app_.Modul1().LetzteNummer.joined(locale()))
    return record.Data1.Recordset().MoveLast();
  moveToDive(record, number(List1.text()));
}

void Form19::Anzeigen() {
  const ListFollows follows(app_.Modul1());
  jump(app_.window<Form3>());
}

// The rules of the row on show take the focus to the window of the dive.
void Form19::Bearbeiten() {
  jump(app_.window<Form4>());
  SetFocus();
}

void Form19::Löschen() {
  jump(app_.window<Form5>());
}

}  // namespace nautrel
