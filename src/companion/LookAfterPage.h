// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"

namespace nautrel::exchange {

class Companion;

/// "Look after the logbook": what is wrong with it, copies, and a copy put back.
class LookAfterPage {
 public:
  LookAfterPage(Form& form, Companion& app);

  /// Looks at the logbook afresh.
  void load();
  void CheckNow_Click();
  void MakeCopy_Click();
  void ChooseCopy_Click();
  void PutBack_Click();

  std::vector<Control*> controls();

 private:
  Form& form_;
  Companion& app_;

 public:
  Frame CheckFrame{form_, "CheckFrame", "Check"};
  Label CheckResult{form_, "CheckResult"};
  ListBox Findings{form_, "Findings"};
  Button CheckNow{form_, "CheckNow", "Chec&k now"};
  Frame CopyFrame{form_, "CopyFrame", "Copy"};
  Label CopyResult{form_, "CopyResult"};
  CheckBox KeepOnly{form_, "KeepOnly", "&keep only the last"};
  TextBox KeepNumber{form_, "KeepNumber", {.text = "10", .maxLength = 4}};
  Button MakeCopy{form_, "MakeCopy", "Make a co&py…"};
  Frame PutBackFrame{form_, "PutBackFrame", "Put a copy back"};
  Label NowChanged{form_, "NowChanged"};
  Label NowSize{form_, "NowSize"};
  Label NowDives{form_, "NowDives"};
  Label CopyName{form_, "CopyName"};
  Label CopyChanged{form_, "CopyChanged"};
  Label CopySize{form_, "CopySize"};
  Label CopyDives{form_, "CopyDives"};
  Button ChooseCopy{form_, "ChooseCopy", "Ch&oose a copy…"};
  Button PutBack{form_, "PutBack", "Put it &back"};

  /// A copy was put in the place of the logbook.
  Event Replaced;

 private:
  void showCopy();

  std::string copy_;  // the file that was chosen
};

}  // namespace nautrel::exchange
