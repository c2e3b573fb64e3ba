// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>

#include "data/data_control.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/report.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Personal information": the diver's own card, the one row of its table.
class Form7 : public Form {
 public:
  static constexpr int kNumber = Windows::PersonalInformation;
  explicit Form7(Shell& app);

  void Form_Load() override;
  void Data1_Reposition();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();

  TextBox Text1{*this, "Text1", {.maxLength = 20}};
  TextBox Text2{*this, "Text2", {.maxLength = 20}};
  TextBox Text3{*this, "Text3", {.maxLength = 20}};
  TextBox Text4{*this, "Text4"};
  TextBox Text5{*this, "Text5", {.maxLength = 20}};
  TextBox Text6{*this, "Text6", {.maxLength = 20}};
  TextBox Text7{*this, "Text7", {.maxLength = 20}};
  TextBox Text8{*this, "Text8", {.maxLength = 20}};
  TextBox Text9{*this, "Text9", {.maxLength = 20}};
  TextBox Text10{*this, "Text10", {.maxLength = 10}};
  TextBox Text11{*this, "Text11", {.maxLength = 10}};
  ComboBox Combo1{
      *this, "Combo1", ComboBox::Style::FreeText, {"CMAS", "PADI", "PDIC", "SSI", "VDST"}};
  TextBox Text12{*this, "Text12", {.maxLength = 20}};
  TextBox Text13{*this, "Text13", {.maxLength = 20}};
  TextBox Text14{*this, "Text14", {.maxLength = 20}};
  TextBox Text15{*this, "Text15", {.maxLength = 255, .multiLine = true}};
  Button Command1{*this, "Command1", "&Save data"};
  Button Command2{*this, "Command2", "Close"};
  Button Command3{*this, "Command3", "&Print"};
  DataControl Data1;
  Report CrystalReport1;

 private:
  struct Field {
    const char* column;
    TextBox* box;  // null for the organization, which has Combo1
  };

  /// In the order of the columns, so that the place in it is the ordinal.
  std::array<Field, 16> fields();

  Shell& app_;
};

}  // namespace nautrel
