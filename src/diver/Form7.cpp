// SPDX-License-Identifier: GPL-2.0-or-later
#include "diver/Form7.h"

#include "platform/errors.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr int kFirstName = 0;
constexpr int kOrganization = 11;

}  // namespace

Form7::Form7(Shell& app)
    : Form(app, "Form7", {.caption = "Personal information", .width = 9600, .height = 6000}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Benutzer),
      CrystalReport1(app.desktop()),
      app_(app) {
  Data1.setVisible(false);
  Command2.setCancel();
  setTabOrder({&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8, &Text9, &Text10,
               &Text11, &Combo1, &Text12, &Text13, &Text14, &Text15, &Command1, &Command3,
               &Command2});
  Data1.Reposition = [this] { Data1_Reposition(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
}

std::array<Form7::Field, 16> Form7::fields() {
  return {{{"Vorname", &Text1},
           {"Nachname", &Text2},
           {"Straße", &Text3},
           {"Plz", &Text4},
           {"Ort", &Text5},
           {"Land", &Text6},
           {"Tel", &Text7},
           {"Fax", &Text8},
           {"Email", &Text9},
           {"Geb", &Text10},
           {"Cerdat", &Text11},
           {"Org", nullptr},
           {"Level", &Text12},
           {"Cernr", &Text13},
           {"Inst", &Text14},
           {"Weitere", &Text15}}};
}

void Form7::Form_Load() {
  Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
  CrystalReport1.setReportFileName(app_.besideExecutable("Benutzer.rpt"));
}

void Form7::Data1_Reposition() {
  const auto column = [this](int ordinal) { return Data1.Recordset().Fields(ordinal); };
  int ordinal = 0;
  for (const auto& [name, box] : fields()) {
    if (box != nullptr)
      resumeNext([&, box = box] { box->setText(column(ordinal).text(locale())); });
    ++ordinal;
  }
  resumeNext([&] { Combo1.setText(column(kOrganization).text(locale())); });
  if (trueOrFails([&] { return !column(kFirstName).joined(locale()).empty(); }))
    setCaption("Personal information for " + Text1.text() + " " + Text2.text());
}

void Form7::Command1_Click() {
  auto& card = Data1.Recordset();
  card.Edit();
  for (const auto& [name, box] : fields())
    card.setField(name, box != nullptr ? box->text() : Combo1.text());
  card.Update();
  Data1.Refresh();
  // Saved once for each opening of the window: nothing enables the button again.
  Command1.setEnabled(false);
}

// The report reads the stored card, not the boxes.
void Form7::Command3_Click() {
  if (MsgBox("Print now?", kAskNo, "Print personal information") != kYes) return;
  CrystalReport1.setDestination(Report::kPrinter);
  CrystalReport1.Action(1);
}

void Form7::Command2_Click() {
  Unload();
}

}  // namespace nautrel
