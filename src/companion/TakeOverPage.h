// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exchange/import_plan.h"
#include "platform/controls.h"
#include "platform/tick_table.h"

namespace nautrel::exchange {

class Companion;

/// "Take over dives": a file is chosen, what it leaves open is asked, what would become of each
/// dive is shown; then it is done, and the report stands there.
class TakeOverPage {
 public:
  TakeOverPage(Form& form, Companion& app);

  void load();
  /// Reads a file and plans with it; one that cannot be read leaves everything as it was.
  void open(const std::string& path);
  /// Whether dives are planned and not taken.
  bool isUnderWay() const { return plan() != nullptr && !file_->taken; }
  /// The logbook is another than the one that was planned with.
  void forget();

  void ChooseFile_Click();
  void TakeOver_Click();
  void SaveReport_Click();
  void Dives_Select();
  void Dives_Tick(int row);

  std::vector<Control*> controls();

 private:
  Form& form_;
  Companion& app_;

 public:
  TextBox FileName{form_, "FileName", {.locked = true}};
  Button ChooseFile{form_, "ChooseFile", "Choose &file…"};
  Label Summary{form_, "Summary"};
  Frame AskDates{form_, "AskDates"};
  Label DatesExample{form_, "DatesExample"};
  OptionButton DayFirst{form_, "DayFirst", "the &day"};
  OptionButton MonthFirst{form_, "MonthFirst", "the &month"};
  Frame AskDurations{form_, "AskDurations"};
  Label DurationsExample{form_, "DurationsExample"};
  OptionButton MinutesSeconds{form_, "MinutesSeconds", "mi&nutes and seconds"};
  OptionButton HoursMinutes{form_, "HoursMinutes", "&hours and minutes"};
  Frame AskUnits{form_, "AskUnits"};
  Label UnitsExample{form_, "UnitsExample"};
  OptionButton Metric{form_, "Metric", "met&ric (m, bar, kg, l)"};
  OptionButton Imperial{form_, "Imperial", "&imperial (ft, psi, lb, cu ft)"};
  TickTable Dives{
      form_, "Dives", {"Take", "Line", "Date", "Place", "Depth", "Time", "What becomes of it"}};
  TextBox Details{form_, "Details", {.locked = true, .multiLine = true}};
  TextBox Report{form_, "Report", {.locked = true, .multiLine = true, .visible = false}};
  Button TickAll{form_, "TickAll", "Tic&k all"};
  Button TickNone{form_, "TickNone", "&Untick all"};
  CheckBox TakeCard{form_, "TakeCard", "the diver's c&ard too"};
  CheckBox TakeEquipment{form_, "TakeEquipment", "the &equipment too", true};
  Button SaveReport{form_, "SaveReport", "&Save report…"};
  Button TakeOver{form_, "TakeOver", "Take &over"};

 private:
  /// The file that was chosen last.
  struct File {
    std::string path;
    std::unique_ptr<ImportSource> source = {};
    std::optional<ImportPlan> plan = {};
    std::string noCard = {};  // why the card cannot be taken; empty if it can
    std::string noEquipment = {};
    bool taken = false;
  };
  struct Asked;

  ImportPlan* plan() const { return file_ && file_->plan ? &*file_->plan : nullptr; }
  std::vector<Asked> questions();
  void ask();
  void focusNext();
  bool isAnswered();
  Answers answers() const;
  void makePlan();
  void wantExtras();
  void tickAll(bool yes);
  void planChanged();
  void show();
  std::string summary();
  std::string whyNotTaken();
  TickTable::Row rowOf(int index) const;

  std::unique_ptr<File> file_;
};

}  // namespace nautrel::exchange
