// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "dives/DiveEntryForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Insert dive": enters dives in series at the end of the logbook.
class Form2 : public DiveEntryForm {
 public:
  static constexpr int kNumber = Windows::InsertDive;
  explicit Form2(Shell& app);

  void Form_Load() override;
  void Form_Unload() override;
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  /// Appends the dive as it stands in the boxes.
  void Speichern();

  CheckBox Check1{*this, "Check1"};
  CheckBox Check2{*this, "Check2", {}, true};
  CheckBox Check3{*this, "Check3", {}, true};
  CheckBox Check4{*this, "Check4", {}, true};
  CheckBox Check5{*this, "Check5"};
  Button Command2{*this, "Command2", "&OK"};
  Button Command3{*this, "Command3", "Close"};
  Button Command4{*this, "Command4", "&Date:"};

 private:
  void edited() override;
  void prepareNextDive();
};

}  // namespace nautrel
