// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "data/data_control.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Delete dive": removes one dive or a range of them, and gives the others new numbers from 1 on.
///
/// Another window opens it on a dive from outside: Show(), then Data1.Recordset().Move(target -
/// currentNumber()).
class Form5 : public Form {
 public:
  static constexpr int kNumber = Windows::DeleteDive;
  explicit Form5(Shell& app);

  void Form_Load() override;
  void Form_Unload() override;
  void Data1_Reposition();
  void SSTab1_Click();
  void Check1_Click();
  void Check2_Click();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Leeren();
  /// The number from which a jump counts: that of the current row as it is stored now, which boxes
  /// and question show from the next move on. Raises 94 or 13 if it has none.
  double currentNumber();
  /// Gives all dives new numbers from 1 on, in stored order. Data1 sees them at its next move.
  void Nummerieren();
  /// Tests the range in Text6 and Text7; every failure shows its message. Text9 is empty
  /// afterwards if the range is good.
  void Überprüfen();

  TabStrip SSTab1{*this, "SSTab1", {"Delete 1 dive", "Delete from dive-# to dive-#"}};
  TextBox Text1{*this, "Text1", {.text = "1", .maxLength = 4, .locked = true}};
  TextBox Text2{*this, "Text2", {.maxLength = 20, .locked = true}};
  TextBox Text3{*this, "Text3", {.maxLength = 20, .locked = true}};
  TextBox Text4{*this, "Text4", {.maxLength = 20, .locked = true}};
  TextBox Text5{*this, "Text5", {.maxLength = 10, .locked = true}};
  TextBox Text8{*this, "Text8", {.maxLength = 20, .locked = true}};
  DataControl Data1;
  Button Command1{*this, "Command1", "&Delete dive"};
  Button Command2{*this, "Command2", "Jump to dive-#"};
  Button Command3{*this, "Command3", "&Close"};
  // The two marks that could leave a gap are out of the user's reach: they are never shown.
  CheckBox Check1{*this, "Check1", "neu durch&numerieren", true};
  Frame Frame1{*this, "Frame1", "Delete"};
  TextBox Text6{*this, "Text6", {.maxLength = 4}};
  SpinButton SpinButton1{*this, "SpinButton1"};
  TextBox Text7{*this, "Text7", {.maxLength = 4}};
  SpinButton SpinButton2{*this, "SpinButton2"};
  Label Label10{*this, "Label10", "max from # to #"};
  CheckBox Check2{*this, "Check2", "neu durchnu&merieren", true};
  Button Command4{*this, "Command4", "D&elete dives"};
  Button Command5{*this, "Command5", "Close"};
  TextBox Text9{*this, "Text9", {.visible = false}};

 private:
  void bindRange();
  /// Asks the question; a No is confirmed.
  bool confirmed(const std::string& question, const std::string& title);
  void deleteRange();
  void showRange();
  void warnOfGap(const CheckBox& renumbering);
  void closeIfEmpty();

  Shell& app_;
};

}  // namespace nautrel
