// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class MDIForm1;
class Shell;

/// "Preferences": the only writer of the settings. A colour shows in the main window at once, a
/// picture when it is saved, a size at the next start.
class Form18 : public Form {
 public:
  static constexpr int kNumber = Windows::Preferences;
  explicit Form18(Shell& app);

  void Form_Load() override;
  void Form_Unload() override;
  void Picture1_Click();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Option1_Click();
  void Option2_MouseUp();

  /// Takes the main window's size and place into the four values.
  void showFrameSize();

  TabStrip SSTab1{*this, "SSTab1", {"Mainwindow", "Program start"}};
  Frame Frame3{*this, "Frame3", "Background color"};
  PictureBox Picture1{*this, "Picture1"};
  Button Command2{*this, "Command2", "&Reset color (standard)"};
  Frame Frame4{*this, "Frame4", "Background image"};
  TextBox Text1{*this, "Text1"};
  Button Command5{*this, "Command5", "..."};
  Frame Frame1{*this, "Frame1"};
  ComboBox Combo1;
  Frame Frame2{*this, "Frame2", "Mainwindow size"};
  OptionButton Option1{*this, "Option1", "Max", true};
  OptionButton Option2{*this, "Option2", "Free size"};
  Label Label4{*this, "Label4", "---"};
  Label Label5{*this, "Label5", "---"};
  Label Label6{*this, "Label6", "---"};
  Label Label7{*this, "Label7", "---"};
  Label Label8{*this, "Label8", "Width"};
  Label Label9{*this, "Label9", "Left:"};
  Label Label10{*this, "Label10", "Height:"};
  Label Label11{*this, "Label11", "Top:"};
  Button Command3{*this, "Command3", "&OK"};
  Button Command1{*this, "Command1", "&Cancel"};
  Button Command4{*this, "Command4", "&Save changes"};
  CommonDialog CommonDialog1;

 private:
  MDIForm1& frame();
  void showSettings();
  void edited();
  void showColor(long color);
  void enableSize(bool enabled);
  void save();

  Shell& app_;
};

}  // namespace nautrel
