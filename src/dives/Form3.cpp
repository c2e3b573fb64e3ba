#include "dives/Form3.h"

#include <utility>

#include "dives/jump.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "search/return_to_search.h"
#include "shell/MDIForm1.h"
#include "shell/Modul1.h"
#include "shell/Nautrel.h"
#include "store/contract.h"

namespace nautrel {

Form3::Form3(Nautrel& app)
    : Form(app, "Form3", {.caption = "View Logbook", .width = 8400, .height = 6300}),
      Data1(*this, "Data1", app.workspace(), "Logbuch"),
      app_(app) {
  Frame3.holds({&Label11, &Text17, &Text13, &Text18});
  Frame5.holds({&Image1, &Image2, &Image3});
  SSTab1.pageHolds(0, {&Text1, &Text2, &Text3, &Text4, &Text5, &Text8, &Text9, &Text10, &List1});
  SSTab1.pageHolds(1, {&Text11});
  SSTab1.pageHolds(2, {&Text14, &Text15, &Text16, &Text19, &Label21, &Label24, &Label25, &Label30,
                       &Frame3, &Frame5});
  SSTab1.pageHolds(3, {&Text12, &Image4, &Image5});
  setTabOrder({&List1, &Command1, &Command3, &SSTab1, &Text1, &Text2, &Text3, &Text4, &Text5,
               &Text8, &Text9, &Text10});
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
  auto rows = app_.workspace().OpenDatabase(app_.databasePath()).OpenRecordset("Logbuch", {"Nr"});
  for (; !rows.Eof(); rows.MoveNext()) List1.AddItem(rows.Fields(Feld::Nr).joined(locale()));
}

void Form3::Leeren() {
  for (auto* label : {&Label21, &Label24, &Label25, &Label11, &Label30}) label->setCaption("");
  for (auto* image : {&Image1, &Image2, &Image3}) image->setVisible(false);
  Image4.setPicture(Image5.picture());
  for (auto* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text8, &Text9, &Text10, &Text11,
                    &Text12, &Text13, &Text14, &Text15, &Text16, &Text17, &Text18, &Text19})
    box->setText("");
}

void Form3::Data1_Reposition() {
  auto& shared = app_.Modul1();
  Leeren();
  showTexts();
  showFlags();
  resumeNext([&] { Text12.setText(Data1.Recordset().Fields(Feld::Grafik).text(locale())); });
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

void Form3::showTexts() {
  auto& rows = Data1.Recordset();
  const auto show = [&](TextBox& box, int ordinal) {
    resumeNext([&] { box.setText(rows.Fields(ordinal).text(locale())); });
  };
  show(Text1, Feld::Nr);
  show(Text2, Feld::Land);
  show(Text3, Feld::Ort);
  show(Text4, Feld::Platz);
  resumeNext([&] {
    Text5.setText(rows.Fields(Feld::Tag).joined(locale()) + "." +
                  rows.Fields(Feld::Monat).joined(locale()) + "." +
                  rows.Fields(Feld::Jahr).joined(locale()));
  });
  show(Text8, Feld::Buddy);
  show(Text9, Feld::Zeit);
  show(Text10, Feld::Tiefe);
  show(Text11, Feld::Lang);
  show(Text13, Feld::Bars);
  show(Text14, Feld::Wetter);
  show(Text15, Feld::Anzug);
  show(Text16, Feld::Höhe);
  show(Text17, Feld::Liter);
  show(Text18, Feld::Bare);
  show(Text19, Feld::Blei);
}

// Of a pair that is Yes both ways the second word stands, since it is written last.
void Form3::showFlags() {
  auto& rows = Data1.Recordset();
  const std::tuple<int, Label*, const char*> words[] = {
      {Feld::Salz, &Label21, "Saltwater"},   {Feld::Süß, &Label21, "Sweet water"},
      {Feld::Ufer, &Label24, "from shore"},  {Feld::Boot, &Label24, "from boat"},
      {Feld::Deco, &Label25, "Deco-stop"},   {Feld::Alu, &Label11, "Aluminum"},
      {Feld::Stahl, &Label11, "Steel tank"}, {Feld::Rep, &Label30, "Rep.-dive"}};
  for (const auto& [ordinal, label, word] : words)
    if (trueOrFails([&, ordinal = ordinal] { return rows.Fields(ordinal).isYes(); }))
      label->setCaption(word);
  const std::pair<int, Image*> pictures[] = {
      {Feld::Sichtg, &Image1}, {Feld::Sichtm, &Image2}, {Feld::Sichts, &Image3}};
  for (const auto& [ordinal, image] : pictures)
    if (trueOrFails([&, ordinal = ordinal] { return rows.Fields(ordinal).isYes(); }))
      image->setVisible(true);
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
