// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/SearchForm.h"

#include <optional>
#include <utility>

#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "platform/errors.h"
#include "platform/number_boxes.h"
#include "search/Form19.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"
#include "shell/placing.h"

namespace nautrel {
namespace {

constexpr double kLeastNumber = 1;

}  // namespace

SearchForm::SearchForm(Shell& app, std::string name, Design design, Differences differences)
    : Form(app, std::move(name), std::move(design)),
      Command3(*this, "Command3", differences.view),
      Command4(*this, "Command4", differences.close),
      app_(app),
      differences_(std::move(differences)) {
  Command1.setDefault(true);
  Command2.setEnabled(false);
  Command4.setCancel();
  Frame2.holds({&Option1, &Option2, &Option3});
  bindRange();
  Option1.Click = [this] { Command3.setCaption("View"); };
  Option2.Click = [this] { Command3.setCaption("Edit"); };
  Option3.Click = [this] { Command3.setCaption("Delete"); };
  List1.Click = [this] { List1_Click(); };
  List1.DblClick = [this] { List1_DblClick(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { neue_Suche(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Unload(); };
}

// Spinning stops at 1 and not at the first number of the logbook; the check of the range tells of
// what lies below that.
void SearchForm::bindRange() {
  const auto range = [this] { return SpinRange{"1", kLeastNumber, app_.Modul1().LetzteNummer}; };
  const auto bind = [&](TextBox& box, SpinButton& spin) {
    if (differences_.rangeFiltered)
      box.Change = [this, &box] { keepWholeNumber(box, kLeastNumber, locale()); };
    spin.SpinUp = [this, &box, range] { spinUp(box, range(), locale()); };
    spin.SpinDown = [this, &box, range] { spinDown(box, range(), locale()); };
  };
  bind(Text1, SpinButton1);
  bind(Text2, SpinButton2);
}

void SearchForm::Form_Load() {
  Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  auto& shared = app_.Modul1();
  shared.NummernLesen();
  Text1.setText(shared.ErsteNummer.joined(locale()));
  Text2.setText(shared.LetzteNummer.joined(locale()));
}

void SearchForm::Form_Unload() {
  app_.Modul1().*differences_.opened = false;
  app_.unload(Windows::FoundDives);
}

void SearchForm::Überprüfen() {
  const auto& shared = app_.Modul1();
  Text3.setText("");
  Text3.setText(
      checkRange(desktop(), Text1, Text2, shared.ErsteNummer, shared.LetzteNummer,
                 {"First dive-# not valid", "Last dive-# not valid", differences_.order}));
}

template <class Statement>
void SearchForm::run(Statement&& statement) const {
  differences_.resumesNext ? resumeNext(statement) : statement();
}

// The way to the first row ends the program where there is none, whatever rule the pass has: under
// the resume-next rule it would never end.
void SearchForm::scan(const Columns& columns, const RowTest& isHit) {
  auto rows = app_.openLogbook(columns);
  rows.MoveFirst();
  while (rows.Fields(Feld::Nr).joined(locale()) != Text1.text()) rows.MoveNext();

  auto& shared = app_.Modul1();
  auto& progress = app_.MDIForm1().ProgressBar1;
  shared.FortschrittMaximum = number(Text2.text()) - number(Text1.text()) + 1;
  shared.FortschrittAnzeigen();
  int hits = 0;
  for (double counter = 1; counter <= shared.FortschrittMaximum; ++counter) {
    if (isHit(rows)) addHit(rows, ++hits);
    run([&] { rows.MoveNext(); });
    progress.setValue(counter);
  }
}

void SearchForm::addHit(const Recordset& row, int count) {
  run([&] { List1.AddItem(row.Fields(Feld::Nr).text(locale())); });
  Label4.setCaption(std::to_string(count));
  List1.Refresh();
  Label4.Refresh();
}

void SearchForm::showOutcome(const std::string& notFound) {
  Command2.setEnabled(true);
  Command2.setDefault(true);
  List1.SetFocus();
  app_.Modul1().FortschrittBeenden();
  if (Label4.caption() != "0") return;
  MsgBox(notFound);
  neue_Suche();
}

void SearchForm::neue_Suche() {
  List1.Clear();
  clearTerm();
  Label4.setCaption("0");
  Frame2.setCaption("Dive");
  termBox().SetFocus();
  Command1.setEnabled(true);
  Command2.setEnabled(false);
  Command1.setDefault(true);
}

void SearchForm::List1_Click() {
  Frame2.setCaption("Dive " + List1.text());
}

void SearchForm::Command3_Click() {
  if (List1.ListIndex() >= 0) openHit();
}

void SearchForm::List1_DblClick() {
  openHit();
}

void SearchForm::openHit() {
  setWindowState(WindowState::Minimized);
  app_.Modul1().*differences_.opened = true;
  if (Option1.on()) Anzeigen();
  if (Option2.on()) Bearbeiten();
  if (Option3.on()) Löschen();
}

void SearchForm::Anzeigen() {
  openIn<Form3>(Form19::kViewing, true);
}
void SearchForm::Bearbeiten() {
  openIn<Form4>(Form19::kEditing, false);
}
void SearchForm::Löschen() {
  openIn<Form5>(Form19::kDeleting, false);
}

template <class RecordForm>
void SearchForm::openIn(const char* mode, bool listFollows) {
  app_.window<RecordForm>().Show();
  auto& record = app_.window<RecordForm>();
  record.Command3.setCaption("&Back");
  const double target = number(List1.text());
  auto& rows = record.Data1.Recordset();
  const int difference = toInt32(target - record.currentNumber());
  {
    std::optional<ListFollows> follows;
    if (listFollows) follows.emplace(app_.Modul1());
    rows.Move(difference);
  }
  showFoundDives(record, mode);
}

// The mode comes last, so that the click which the selection raises does not jump once more, nor
// move the window that a list still open has led.
void SearchForm::showFoundDives(const Form& beside, const char* mode) {
  app_.window<Form19>().Show();
  auto& found = app_.window<Form19>();
  found.Text1.setText("");
  found.setWidth(Form19::kListWidth + 100);
  found.setHeight(beside.Height());
  found.setLeft(beside.Left() - found.Width());
  found.setTop(beside.Top());
  for (const auto& line : List1.lines()) found.List1.AddItem(line);
  found.List1.setListIndex(List1.ListIndex());
  found.Text1.setText(mode);
}

}  // namespace nautrel
