// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "data/data_control.h"
#include "evaluation/figures.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/report.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;
class TextFile;

/// "Statistic": the figures of the whole logbook, counted when the window opens and never again.
class Form6 : public Form {
 public:
  static constexpr int kNumber = Windows::Statistic;
  explicit Form6(Shell& app);

  void Form_Load() override;
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();
  /// Overwrites the one row of `Statistik` with what the window shows. Raises 3021 if it has none.
  void Datenbank();
  /// Writes the statistic to the file chosen in CommonDialog1. Raises 75 or 76.
  void Datei();
  /// Prints the same text with German headings, without a template. No command calls it.
  void Drucken();

  /// The button of a record dive by the digit of its name. Raises 91 if there is none.
  const Button& recordButton(const Value& digit) const;

  TabStrip SSTab1{*this, "SSTab1", {"General", "More"}};
  Label Label1{*this, "Label1", "whole divetime:"};
  Label Label2{*this, "Label2", "max. depth:"};
  Label Label3{*this, "Label3", "min. depth:"};
  Label Label4{*this, "Label4", "longest dive:"};
  Label Label5{*this, "Label5", "shortest dive:"};
  Label Label6{*this, "Label6", "middle divetime:"};
  Label Label7{*this, "Label7", "middle depth:"};
  Label Label8{*this, "Label8", "0"};
  Label Label9{*this, "Label9", "0"};
  Label Label10{*this, "Label10", "0"};
  Label Label11{*this, "Label11", "999"};
  Label Label12{*this, "Label12", "0"};
  Label Label13{*this, "Label13", "999"};
  Label Label14{*this, "Label14", "0"};
  Label Label15{*this, "Label15", "hours"};
  Label Label16{*this, "Label16", "min/dive"};
  Label Label17{*this, "Label17", "min      by dive-#:"};
  Label Label18{*this, "Label18", "min      by dive-#:"};
  Label Label19{*this, "Label19", "ft          by dive-#:"};
  Label Label20{*this, "Label20", "ft          by dive-#:"};
  Label Label21{*this, "Label21", "ft/dive"};
  Button Command4{*this, "Command4", "0"};
  Button Command5{*this, "Command5", "0"};
  Button Command6{*this, "Command6", "0"};
  Button Command7{*this, "Command7", "0"};
  Label Label26{*this, "Label26", "0 - 30 ft:"};
  Label Label27{*this, "Label27", "31 - 60 ft:"};
  Label Label28{*this, "Label28", "61 - 90 ft:"};
  Label Label29{*this, "Label29", "91 - 120 ft:"};
  Label Label30{*this, "Label30", "121 - 150 ft:"};
  Label Label31{*this, "Label31", "> 150 ft:"};
  Label Label32{*this, "Label32", "0"};
  Label Label33{*this, "Label33", "0"};
  Label Label34{*this, "Label34", "0"};
  Label Label35{*this, "Label35", "0"};
  Label Label36{*this, "Label36", "0"};
  Label Label37{*this, "Label37", "0"};
  Label Label38{*this, "Label38", "Sweetwat.:"};
  Label Label39{*this, "Label39", "Saltwat.:"};
  Label Label40{*this, "Label40", "0"};
  Label Label41{*this, "Label41", "0"};
  Label Label42{*this, "Label42", "rep-dive:"};
  Label Label43{*this, "Label43", "deco-stop:"};
  Label Label44{*this, "Label44", "0"};
  Label Label45{*this, "Label45", "0"};
  Label Label46{*this, "Label46", "0 %"};
  Label Label47{*this, "Label47", "0 %"};
  Label Label48{*this, "Label48", "0 %"};
  Label Label49{*this, "Label49", "0 %"};
  Label Label50{*this, "Label50", "0 %"};
  Label Label51{*this, "Label51", "0 %"};
  Label Label52{*this, "Label52", "0 %"};
  Label Label53{*this, "Label53", "0 %"};
  Label Label54{*this, "Label54", "0 %"};
  Label Label55{*this, "Label55", "0 %"};
  Label Label57{*this, "Label57", "from boat:"};
  Label Label58{*this, "Label58", "from shore:"};
  Label Label59{*this, "Label59", "0"};
  Label Label60{*this, "Label60", "0"};
  Label Label61{*this, "Label61", "0 %"};
  Label Label62{*this, "Label62", "0 %"};
  Button Command1{*this, "Command1", "&Close"};
  Button Command2{*this, "Command2", "&Print statistic"};
  Button Command3{*this, "Command3", "&Save to file"};
  TextBox Text1{*this, "Text1", {.visible = false}};
  DataControl Data1;
  Report CrystalReport1;
  CommonDialog CommonDialog1;
  TextBox RichTextBox1{*this, "RichTextBox1", {.multiLine = true, .visible = false}};

 private:
  /// A line of the first page; only a record has the button of its dive.
  struct FigureLine {
    Label& caption;
    Label& value;
    Label& unit;
    Button* dive = nullptr;
  };
  /// A line of the second page. In the text file it is indented.
  struct ShareLine {
    Label& caption;
    Label& count;
    Label& percent;
    const char* column;
    const char* indent = "";
  };
  struct Headings;

  std::vector<FigureLine> figureLines();
  std::vector<ShareLine> depthLines();
  std::vector<ShareLine> otherLines();
  void show(const StatisticFigures& figures);
  void showFigures(const StatisticFigures& figures);
  void showShares(const StatisticFigures& figures);
  void writeStatistic(const std::string& path, const Headings& headings);
  static void write(TextFile& file, const FigureLine& line);
  static void write(TextFile& file, const ShareLine& line);
  void dropMenu(Button& button, const char* digit);

  Shell& app_;
};

}  // namespace nautrel
