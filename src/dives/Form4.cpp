#include "dives/Form4.h"

#include "dives/jump.h"
#include "platform/errors.h"
#include "search/return_to_search.h"
#include "shell/MDIForm1.h"
#include "shell/Modul1.h"
#include "shell/Nautrel.h"
#include "store/contract.h"

namespace nautrel {

Form4::Form4(Nautrel& app)
    : DiveEntryForm(app, "Form4", {.caption = "Edit dives", .width = 7200, .height = 6900},
                    {.repDive = "&Rep.- dive",
                     .pathLength = 0,
                     .severalInfo = "Serveral Info",
                     .linkedGraphic = "Linked grafic"}),
      Data1(*this, "Data1", app.workspace(), "Logbuch") {
  Command1.setCaption("&Save Changes");
  Command1.setDefault(true);
  Command3.setCancel();
  SSTab1.pageHolds(3, {&Image5});
  setTabOrder({&Text2,  &Text3,    &Text4,    &Text5,    &Text6,    &Text7,   &Text8,   &Text9,
               &Text10, &Text1,    &Text11,   &Frame1,   &Option1,  &Option2, &Option3, &Option4,
               &Check6, &Check7,   &Text14,   &Text15,   &Text16,   &Text19,  &Option5, &Option6,
               &Text17, &Text13,   &Text18,   &Option7,  &Option8,  &Option9, &Text21,  &Command5,
               &Data1,  &Command4, &Command1, &Command2, &Command3, &SSTab1});
  selectTextOnEntry();
  Data1.Reposition = [this] { Data1_Reposition(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
}

void Form4::selectTextOnEntry() {
  for (auto* box :
       {&Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8, &Text9, &Text10, &Text11, &Text13,
        &Text14, &Text15, &Text16, &Text17, &Text18, &Text19, &Text21})
    box->GotFocus = [box, before = box->GotFocus] {
      raiseEvent(before);
      box->selectAll();
    };
}

void Form4::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
}

void Form4::Leeren() {
  for (auto& [column, option] : optionColumns()) option->setOn(false);
  for (auto* check : {&Check6, &Check7}) check->setOn(false);
  Image4.setPicture(Image5.picture());
  for (auto* box :
       {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8, &Text9, &Text10, &Text11,
        &Text13, &Text14, &Text15, &Text16, &Text17, &Text18, &Text19, &Text21})
    box->setText("");
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
  const auto fill = [&](TextBox& box, int column) {
    resumeNext([&] { box.setText(dive.Fields(column).text(locale())); });
  };
  const auto mark = [&](auto& control, int column) {
    if (trueOrFails([&] { return dive.Fields(column).isYes(); })) control.setOn(true);
  };
  fill(Text1, Feld::Nr);
  fill(Text2, Feld::Land);
  fill(Text3, Feld::Ort);
  fill(Text4, Feld::Platz);
  fill(Text5, Feld::Tag);
  fill(Text6, Feld::Monat);
  fill(Text7, Feld::Jahr);
  fill(Text8, Feld::Buddy);
  fill(Text9, Feld::Zeit);
  fill(Text10, Feld::Tiefe);
  fill(Text11, Feld::Lang);
  fill(Text13, Feld::Bars);
  fill(Text14, Feld::Wetter);
  fill(Text15, Feld::Anzug);
  fill(Text16, Feld::Höhe);
  fill(Text17, Feld::Liter);
  fill(Text18, Feld::Bare);
  fill(Text19, Feld::Blei);
  mark(Option1, Feld::Salz);
  mark(Option2, Feld::Süß);
  mark(Option3, Feld::Ufer);
  mark(Option4, Feld::Boot);
  mark(Check6, Feld::Deco);
  mark(Option5, Feld::Alu);
  mark(Option6, Feld::Stahl);
  mark(Option7, Feld::Sichtg);
  mark(Option8, Feld::Sichtm);
  mark(Option9, Feld::Sichts);
  mark(Check7, Feld::Rep);
  fill(Text21, Feld::Grafik);
}

void Form4::Speichern() {
  auto& dive = Data1.Recordset();
  dive.Edit();
  for (const auto& [column, box] : textColumns()) dive.setField(column, box->text());
  dive.setField("Grafik", Text21.text());
  for (const auto& [column, option] : optionColumns()) dive.setField(column, option->on());
  dive.setField("Deco", Check6.on());
  dive.setField("Rep", Check7.on());
  dive.Update();
}

bool Form4::complete() {
  Text12.setText("");
  Felder();
  return Text12.text() != "ende";
}

void Form4::Command1_Click() {
  if (!complete()) return;
  Speichern();
  auto& last = app_.Modul1().LetzteNummer;
  {
    auto database = app_.workspace().OpenDatabase(app_.databasePath());
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
