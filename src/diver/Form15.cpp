// SPDX-License-Identifier: GPL-2.0-or-later
#include "diver/Form15.h"

#include <optional>

#include "platform/errors.h"
#include "shell/Shell.h"
#include "shell/placing.h"
#include "store/contract.h"

namespace nautrel {

Form15::Form15(Shell& app)
    : Form(app, "Form15", {.caption = "Dive Equipment", .width = 8400, .height = 5100}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Ausrüstung),
      app_(app) {
  Command3.setEnabled(false);
  Command5.setCancel();
  setTabOrder({&Text1, &Text2, &Text3, &Text8, &Text4, &Text5, &Text6, &Text9, &Text7, &Data1,
               &Command1, &Command2, &Command3, &Command4, &Command5});
  Data1.Reposition = [this] { Data1_Reposition(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
}

std::array<Form15::Field, 9> Form15::fields() {
  return {{{"Gegenstand", Text1},
           {"Fabrikant", Text2},
           {"Seriennummer", Text3},
           {"Kaufdatum", Text4},
           {"Garantie", Text5},
           {"Kaufort", Text6},
           {"Info", Text7},
           {"Nr", Text8},
           {"Preis", Text9}}};
}

Recordset Form15::open(std::string_view table) {
  return app_.openDatabase().OpenRecordset(table);
}

void Form15::showCount(int count) {
  setCaption("Dive equipment - records: " + std::to_string(count));
}

// Until the first Save or Delete the title states the number of dives. Divers know it so.
void Form15::Form_Load() {
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
  showCount(open(Tabelle::Logbuch).RecordCount());
}

// The boxes are not emptied first: a Null leaves the text of the item shown before.
void Form15::Data1_Reposition() {
  int ordinal = 0;
  for (auto& [column, box] : fields()) {
    resumeNext([&] { box.setText(Data1.Recordset().Fields(ordinal).text(locale())); });
    ++ordinal;
  }
}

void Form15::Command1_Click() {
  for (auto* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text9})
    box->setText("");
  Text8.setText(text(open(Tabelle::Ausrüstung).RecordCount() + 1));
  Text1.SetFocus();
  beginItem(true);
}

void Form15::beginItem(bool begun) {
  Command3.setEnabled(begun);
  for (auto* button : {&Command1, &Command2, &Command4}) button->setEnabled(!begun);
  Data1.setEnabled(!begun);
}

void Form15::Command3_Click() {
  {
    auto items = open(Tabelle::Ausrüstung);
    items.AddNew();
    for (auto& [column, box] : fields()) items.setField(column, box.text());
    items.Update();
  }
  Data1.Refresh();
  Data1.Recordset().MoveLast();
  showCount(Data1.Recordset().RecordCount());
  beginItem(false);
}

void Form15::Command4_Click() {
  resumeNext([&] { Data1.Recordset().Edit(); });
  for (auto& [column, box] : fields())
    resumeNext(
        [&, column = column, &box = box] { Data1.Recordset().setField(column, box.text()); });
  resumeNext([&] { Data1.Recordset().Update(); });
}

// Whatever the answer, the title now states the number of items.
void Form15::Command2_Click() {
  if (MsgBox("Delete current record?", kAskCritical, "Delete equipment") == kYes) {
    resumeNext([&] { Data1.Recordset().Delete(); });
    resumeNext([&] { Data1.Refresh(); });
  }
  std::optional<int> count;
  resumeNext([&] { count = open(Tabelle::Ausrüstung).RecordCount(); });
  if (count) showCount(*count);
  if (count.value_or(0) == 0)
    for (auto& [column, box] : fields()) box.setText("");
}

void Form15::Command5_Click() {
  Unload();
}

}  // namespace nautrel
