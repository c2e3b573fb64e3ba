// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/Form14.h"

#include "dives/dive_columns.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"

namespace nautrel {
namespace {

constexpr int kDate = -1;  // no column: the date that three of them join to

struct NumberColumn {
  int ordinal;
  CheckBox Form14::*box;
};

// In the order of the tests.
constexpr NumberColumn kColumns[] = {
    {Feld::Zeit, &Form14::Check1},  {Feld::Tiefe, &Form14::Check2}, {Feld::Tag, &Form14::Check3},
    {Feld::Monat, &Form14::Check4}, {Feld::Jahr, &Form14::Check5},  {Feld::Bars, &Form14::Check7},
    {Feld::Bare, &Form14::Check8},  {Feld::Liter, &Form14::Check9}, {Feld::Höhe, &Form14::Check10},
    {Feld::Blei, &Form14::Check11}, {kDate, &Form14::Check6},
};

}  // namespace

Form14::Form14(Shell& app)
    : SearchForm(app, "Form14", {.caption = "Search a number", .width = 8100, .height = 6600},
                 {.opened = windowEntry(kNumber).search,
                  .order = "First dive-# must be lower than last dive-#",
                  .resumesNext = true}) {
  Frame4.holds({&Check1, &Check2, &Check3, &Check4, &Check5, &Check6, &Check7, &Check8, &Check9,
                &Check10, &Check11});
  setTabOrder({&Text4, &Text1, &SpinButton1, &Text2, &SpinButton2, &Option4, &Option5, &Option6,
               &Check1, &Check2, &Check3, &Check4, &Check5, &Check6, &Check7, &Check8, &Check9,
               &Check10, &Check11});
  Check6.Click = [this] { Check6_Click(); };
}

// The number is locked before the range is checked, and stays so if the range is not valid: the
// same number can be searched once the range is corrected.
void Form14::Command1_Click() {
  Text4.setEnabled(false);
  if (Option4.on()) Kleiner();
  if (Option5.on()) Gleich();
  if (Option6.on()) Größer();
}

// A date is searched for by itself and by all of its characters.
void Form14::Check6_Click() {
  const bool numbers = !Check6.on();
  for (auto* box : {&Check3, &Check4, &Check5}) {
    box->setOn(numbers);
    box->setEnabled(numbers);
  }
  Option4.setEnabled(numbers);
  Option6.setEnabled(numbers);
  if (!numbers) Option5.setOn(true);
}

void Form14::search(const RowTest& isHit, const std::string& prefix) {
  Hourglass wait(app_.MDIForm1());
  Überprüfen();
  if (!Text3.isEmpty()) return;
  Command1.setEnabled(false);
  scan(columnsOf(kColumns), isHit);
  showOutcome(prefix + "'" + Text4.text() + "' not found");
}

/// Nothing past the last row, where every test fails.
std::optional<Value> Form14::read(const Recordset& row, int ordinal) const {
  if (row.Eof()) return {};
  return ordinal == kDate ? Value(joinedDate(row, locale())) : row.Fields(ordinal);
}

// A test that fails goes on with the box of its column: what cannot be turned into text counts as
// equal here, and what is no number as a hit below.
void Form14::Gleich() {
  const auto equals = [this](const std::optional<Value>& stored) {
    return !stored || stored->isNull() || stored->joined(locale()) == Text4.text();
  };
  search(
      [&](const Recordset& row) {
        for (const auto& [ordinal, box] : kColumns)
          if (equals(read(row, ordinal))) return (this->*box).on();
        return false;
      },
      "");
}

void Form14::Kleiner() {
  search(anyColumn(std::greater<>()), "kleiner ");
}
void Form14::Größer() {
  search(anyColumn(std::less<>()), "größer ");
}

SearchForm::RowTest Form14::anyColumn(const Comparison& passes) const {
  const auto wanted = tryNumber(Text4.text());
  const auto passesOrFails = [=, this](const std::optional<Value>& stored) {
    if (!wanted || !stored) return true;
    if (stored->isNull()) return false;
    const auto value = tryNumber(stored->joined(locale()));
    return !value || passes(*wanted, *value);
  };
  return [=, this](const Recordset& row) {
    for (const auto& [ordinal, box] : kColumns)
      if ((this->*box).on() && passesOrFails(read(row, ordinal))) return true;
    return false;
  };
}

void Form14::clearTerm() {
  Text4.setText("");
  Text4.setEnabled(true);
}

}  // namespace nautrel
