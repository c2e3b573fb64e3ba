// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "store/contract.h"
#include "store/database.h"

namespace nautrel {

class Modul1;
class Shell;

/// What the three searches share: the range of dive numbers, the pass over its rows, the list of
/// hits, and the opening of a hit in a record window with the found dives beside it.
class SearchForm : public Form {
 public:
  /// Where the near-copies differ.
  struct Differences {
    bool Modul1::*opened = nullptr;  // the shared flag: a record window was opened from here
    std::string order;               // the message for a range that is the wrong way round
    bool rangeFiltered = true;       // whether the boxes of the range take whole numbers alone
    bool resumesNext = false;        // whether the pass goes on after a failing statement
    std::string view = "View";       // caption of Command3 before an option was chosen
    std::string close = "Close";     // caption of Command4
  };
  SearchForm(Shell& app, std::string name, Design design, Differences differences);

  void Form_Load() override;
  void Form_Unload() override;
  virtual void Command1_Click() = 0;
  void Command3_Click();
  void List1_Click();
  void List1_DblClick();

  /// Open the selected hit in Form3, Form4 or Form5. Raise 13 if no line is selected.
  /// @{
  void Anzeigen();
  void Bearbeiten();
  void Löschen();
  /// @}

  /// Back to the state before a search; the terms of earlier searches and the range stay.
  virtual void neue_Suche();
  /// Tests the range; its verdict is left in Text3, empty for a valid one.
  void Überprüfen();

  TextBox Text1{*this, "Text1", {.maxLength = 4}};
  SpinButton SpinButton1{*this, "SpinButton1"};
  TextBox Text2{*this, "Text2", {.maxLength = 4}};
  SpinButton SpinButton2{*this, "SpinButton2"};
  TextBox Text3{*this, "Text3", {.visible = false}};
  Button Command1{*this, "Command1", "&Start search"};
  Button Command2{*this, "Command2", "&New search"};
  ListBox List1{*this, "List1"};
  Label Label4{*this, "Label4", "0"};
  Frame Frame2{*this, "Frame2", "Dive"};
  OptionButton Option1{*this, "Option1", "View", true};
  OptionButton Option2{*this, "Option2", "Edit"};
  OptionButton Option3{*this, "Option3", "Delete"};
  Button Command3;
  Button Command4;

 protected:
  using RowTest = std::function<bool(const Recordset& row)>;

  /// What a pass reads for the boxes that choose among columns: the number and those columns.
  template <class ColumnBoxes>
  static Columns columnsOf(const ColumnBoxes& boxes) {
    Columns names{"Nr"};
    for (const auto& [ordinal, box] : boxes)
      if (ordinal >= 0) names.emplace_back(kLogbuchColumns[ordinal].name);
    return names;
  }

  /// Takes the rows of the range in table order and lists those that pass the test. Raises 3021 if
  /// no row has the first number.
  void scan(const Columns& columns, const RowTest& isHit);
  /// After the pass: the hits are on show, or `notFound` is and the window is as before it.
  void showOutcome(const std::string& notFound);

  /// Empties the box of the term and makes it usable again.
  virtual void clearTerm() = 0;
  virtual Control& termBox() = 0;

  Shell& app_;

 private:
  void bindRange();
  void addHit(const Recordset& row, int count);
  void openHit();
  template <class Statement>
  void run(Statement&& statement) const;
  template <class RecordForm>
  void openIn(const char* mode, bool listFollows);
  void showFoundDives(const Form& beside, const char* mode);

  Differences differences_;
};

}  // namespace nautrel
