// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "calculators/unit_conversion.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Unit Calculations": six pages of boxes. Typing into one box fills every other of its page.
class Form21 : public Form {
 public:
  static constexpr int kNumber = Windows::UnitCalculation;
  explicit Form21(Shell& app);

  void Form_Load() override;
  /// The handlers that all boxes of units share, by the number of the box.
  /// @{
  void Text_GotFocus(int number);
  void Text_Change(int number);
  /// @}
  /// Empty a page each.
  /// @{
  void Leer1();
  void Leer2();
  void Leer3();
  void Leer4();
  void Leer5();
  void Leer6();
  /// @}
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command6_Click();
  void Command8_Click();
  void Command9_Click();
  void Command10_Click();
  void Command11_Click();

  TabStrip SSTab1{*this, "SSTab1", {"Length", "Volumes", "Weight", "Pressure", "Temp.", "Wind"}};
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  TextBox Text3{*this, "Text3"};
  TextBox Text4{*this, "Text4"};
  TextBox Text6{*this, "Text6"};
  TextBox Text7{*this, "Text7"};
  TextBox Text8{*this, "Text8"};
  TextBox Text9{*this, "Text9"};
  TextBox Text10{*this, "Text10"};
  TextBox Text5{*this, "Text5", {.text = "Text5", .visible = false}};
  Button Command1{*this, "Command1", "New"};
  TextBox Text11{*this, "Text11"};
  TextBox Text12{*this, "Text12"};
  TextBox Text13{*this, "Text13"};
  TextBox Text14{*this, "Text14"};
  TextBox Text36{*this, "Text36"};
  TextBox Text37{*this, "Text37"};
  Image Image1{*this, "Image1"};
  Button Command2{*this, "Command2", "New"};
  Button Command3{*this, "Command3", "Close"};
  TextBox Text15{*this, "Text15"};
  TextBox Text16{*this, "Text16"};
  TextBox Text17{*this, "Text17"};
  TextBox Text18{*this, "Text18"};
  TextBox Text19{*this, "Text19"};
  TextBox Text38{*this, "Text38"};
  TextBox Text39{*this, "Text39"};
  Image Image2{*this, "Image2"};
  Button Command4{*this, "Command4", "New"};
  TextBox Text20{*this, "Text20"};
  TextBox Text21{*this, "Text21"};
  TextBox Text22{*this, "Text22"};
  TextBox Text23{*this, "Text23"};
  TextBox Text24{*this, "Text24"};
  TextBox Text25{*this, "Text25"};
  TextBox Text35{*this, "Text35"};
  Button Command6{*this, "Command6", "New"};
  TextBox Text26{*this, "Text26"};
  TextBox Text27{*this, "Text27"};
  TextBox Text28{*this, "Text28"};
  Image Image3{*this, "Image3"};
  Button Command8{*this, "Command8", "New"};
  Button Command9{*this, "Command9", "Close"};
  TextBox Text29{*this, "Text29"};
  TextBox Text30{*this, "Text30"};
  TextBox Text31{*this, "Text31"};
  TextBox Text32{*this, "Text32"};
  TextBox Text33{*this, "Text33"};
  TextBox Text34{*this, "Text34"};
  Button Command10{*this, "Command10", "New"};
  Button Command11{*this, "Command11", "Close"};

  /// The box of units of that number.
  TextBox& box(int number) const;

 private:
  void arrangePages();
  void bindBoxes();
  void bindButtons();
  void empty(UnitPage page);

  Shell& app_;
  std::map<int, TextBox*> boxes_;
};

}  // namespace nautrel
