// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "exchange/export.h"
#include "platform/controls.h"

namespace nautrel::exchange {

class Companion;

/// "Give dives out": form, range and what goes with the dives; what the form cannot carry is said
/// before.
class GiveOutPage {
 public:
  GiveOutPage(Form& form, Companion& app);

  /// Looks at the logbook afresh.
  void load();
  void WriteFile_Click();

  std::vector<Control*> controls();

 private:
  Form& form_;
  Companion& app_;

 public:
  Label Holds{form_, "Holds"};
  Frame FormatFrame{form_, "FormatFrame", "Form"};
  OptionButton Uddf{form_, "Uddf", "&UDDF, for other logbook programs and for Nautrel itself",
                    true};
  OptionButton Csv{form_, "Csv", "CS&V, a table of the dives for a spreadsheet"};
  Label CannotCarry{form_, "CannotCarry"};
  Frame RangeFrame{form_, "RangeFrame", "Dives"};
  OptionButton AllDives{form_, "AllDives", "&all dives", true};
  OptionButton SomeDives{form_, "SomeDives", "those with &numbers from"};
  TextBox FromNumber{form_, "FromNumber", {.maxLength = 4}};
  Label ToLabel{form_, "ToLabel", "to"};
  TextBox ToNumber{form_, "ToNumber", {.maxLength = 4}};
  Frame ExtrasFrame{form_, "ExtrasFrame", "With them"};
  CheckBox WithCard{form_, "WithCard", "the diver's car&d", true};
  CheckBox WithEquipment{form_, "WithEquipment", "the &equipment", true};
  TextBox Written{form_, "Written", {.locked = true, .multiLine = true, .visible = false}};
  Button WriteFile{form_, "WriteFile", "&Write to a file…"};

 private:
  ExportOptions options() const;
  /// The wish for a range, or nothing where a box is wrong: then the user was told.
  std::optional<ExportOptions> checkedOptions();
  void show();
  void write(const std::string& file, const ExportOptions& options);
};

}  // namespace nautrel::exchange
