// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/data_control.h"
#include "dives/DiveEntryForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Edit dives": shows one dive in the entry boxes and writes changes back to its row. A change
/// that is not saved is lost at the next move, without a question.
///
/// Another window opens it on a dive from outside: Show(), then Data1.Recordset().Move(target -
/// currentNumber()).
class Form4 : public DiveEntryForm {
 public:
  static constexpr int kNumber = Windows::EditDive;
  explicit Form4(Shell& app);

  void Form_Load() override;
  void Form_Unload() override;
  void Data1_Reposition();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Leeren();
  /// The number from which a jump counts: that of the current row. Raises 94 or 13 if it has none.
  double currentNumber();
  /// Writes the boxes and every flag, on or off, to the current row; never its number.
  void Speichern();

  Image Image5{*this, "Image5", false};
  DataControl Data1;
  Button Command2{*this, "Command2", "&OK"};
  Button Command3{*this, "Command3", "&Close"};
  Button Command4{*this, "Command4", "Jump to dive-#"};

 private:
  void showRow();
};

}  // namespace nautrel
