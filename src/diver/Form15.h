// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "data/data_control.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Dive Equipment": a card index of the diver's gear. It browses, or it takes a new item; from a
/// new item only Save and Close lead out.
class Form15 : public Form {
 public:
  static constexpr int kNumber = Windows::DiveEquipment;
  explicit Form15(Shell& app);

  void Form_Load() override;
  void Data1_Reposition();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();

  TextBox Text1{*this, "Text1", {.maxLength = 20}};
  TextBox Text2{*this, "Text2", {.maxLength = 20}};
  TextBox Text3{*this, "Text3", {.maxLength = 20}};
  TextBox Text4{*this, "Text4", {.maxLength = 20}};
  TextBox Text5{*this, "Text5", {.maxLength = 20}};
  TextBox Text6{*this, "Text6", {.maxLength = 20}};
  TextBox Text7{*this, "Text7", {.maxLength = 255, .multiLine = true}};
  TextBox Text8{*this, "Text8", {.text = "1", .maxLength = 10}};
  TextBox Text9{*this, "Text9", {.maxLength = 10}};
  DataControl Data1;
  Button Command1{*this, "Command1", "New"};
  Button Command2{*this, "Command2", "Delete"};
  Button Command3{*this, "Command3", "Save"};
  Button Command4{*this, "Command4", "Save Chang."};
  Button Command5{*this, "Command5", "Close"};

 private:
  struct Field {
    const char* column;
    TextBox& box;
  };

  /// In the order of the columns, so that the place in it is the ordinal.
  std::array<Field, 9> fields();
  Recordset open(std::string_view table);
  void showCount(int count);
  void beginItem(bool begun);

  Shell& app_;
};

}  // namespace nautrel
