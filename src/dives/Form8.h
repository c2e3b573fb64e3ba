// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Sort logbook": keeps the stored order and gives the dives new numbers from a chosen one on.
class Form8 : public Form {
 public:
  static constexpr int kNumber = Windows::SortLogbook;
  explicit Form8(Shell& app);

  void Form_Load() override;
  void Command1_Click();
  void Command2_Click();

  Frame Frame1{*this, "Frame1"};
  TextBox Text1{*this, "Text1", {.text = "1", .maxLength = 4}};
  SpinButton SpinButton1{*this, "SpinButton1"};
  Button Command1{*this, "Command1", "&Start"};
  Button Command2{*this, "Command2", "&Close"};

 private:
  int countDives();
  std::string comingNumbers() const;
  void renumberAll();

  Shell& app_;
};

}  // namespace nautrel
