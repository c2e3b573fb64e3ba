// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/data_control.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "View Logbook": one dive at a time, read-only, with the list of all numbers beside it.
///
/// Another window shows a dive here from outside: Show(), then, as long as a ListFollows lives,
/// Data1.Recordset().Move(target - currentNumber()).
class Form3 : public Form {
 public:
  static constexpr int kNumber = Windows::ViewLogbook;
  explicit Form3(Shell& app);

  void Form_Load() override;
  void Form_Unload() override;
  void Data1_Reposition();
  void Data1_MouseDown();
  void List1_Click();
  void Command1_Click();
  void Command3_Click();
  void Leeren();
  /// The number from which a jump counts: that of the current row. Raises 94 or 13 if it has none.
  double currentNumber();

  TabStrip SSTab1{*this, "SSTab1", {"General", "Comments", "Several Info", "Linked graphic"}};
  TextBox Text1{*this, "Text1", {.locked = true}};
  TextBox Text2{*this, "Text2", {.locked = true}};
  TextBox Text3{*this, "Text3", {.locked = true}};
  TextBox Text4{*this, "Text4", {.locked = true}};
  TextBox Text5{*this, "Text5", {.locked = true}};
  TextBox Text8{*this, "Text8", {.locked = true}};
  TextBox Text9{*this, "Text9", {.locked = true}};
  TextBox Text10{*this, "Text10", {.locked = true}};
  ListBox List1{*this, "List1"};
  TextBox Text11{*this, "Text11", {.locked = true, .multiLine = true}};
  Label Label21{*this, "Label21"};
  Label Label24{*this, "Label24"};
  Label Label25{*this, "Label25"};
  Label Label30{*this, "Label30"};
  TextBox Text14{*this, "Text14", {.locked = true}};
  TextBox Text15{*this, "Text15", {.locked = true}};
  TextBox Text16{*this, "Text16", {.locked = true}};
  TextBox Text19{*this, "Text19", {.locked = true}};
  Frame Frame3{*this, "Frame3", "Tank"};
  Label Label11{*this, "Label11"};
  TextBox Text17{*this, "Text17", {.locked = true}};
  TextBox Text13{*this, "Text13", {.locked = true}};
  TextBox Text18{*this, "Text18", {.locked = true}};
  Frame Frame5{*this, "Frame5", "View"};
  Image Image1{*this, "Image1", false};
  Image Image2{*this, "Image2", false};
  Image Image3{*this, "Image3", false};
  TextBox Text12{*this, "Text12", {.locked = true}};
  Image Image4{*this, "Image4"};
  Image Image5{*this, "Image5", false};
  DataControl Data1;
  Button Command1{*this, "Command1", "&Jump to dive-#"};
  Button Command3{*this, "Command3", "Close"};

 private:
  void fillList();
  void showRow();
  void selectByCount();
  void selectIfShown(int line);

  Shell& app_;
  bool following_ = false;  // the list follows the record, and does not lead it
};

}  // namespace nautrel
