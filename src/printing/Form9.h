// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/report.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Print Dive List": a range of dives as a report on the screen, on the printer, or as a text
/// file.
class Form9 : public Form {
 public:
  static constexpr int kNumber = Windows::PrintDiveList;
  explicit Form9(Shell& app);

  void Form_Load() override;
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  /// Tests the range and tells the user; the verdict is left in Text4, empty for a good range.
  void Überprüfen();

  TextBox Text1{*this, "Text1", {.maxLength = 4}};
  SpinButton SpinButton1{*this, "SpinButton1"};
  TextBox Text2{*this, "Text2", {.maxLength = 4}};
  SpinButton SpinButton2{*this, "SpinButton2"};
  /// The number of copies is kept valid but goes nowhere: the printer's own set-up has it.
  TextBox Text3{*this, "Text3", {.text = "1", .maxLength = 4}};
  SpinButton SpinButton3{*this, "SpinButton3"};
  TextBox Text4{*this, "Text4", {.visible = false}};
  Button Command1{*this, "Command1", "&Preview"};
  Button Command2{*this, "Command2", "&Pr&int"};
  Button Command3{*this, "Command3", "Print to &File"};
  Button Command4{*this, "Command4", "&Close"};
  Report CrystalReport1;
  CommonDialog CommonDialog1;

 private:
  void bindBoxes();
  bool rangeIsGood();
  bool chooseFile();
  void writeList();
  void runReport(int destination);

  Shell& app_;
};

}  // namespace nautrel
