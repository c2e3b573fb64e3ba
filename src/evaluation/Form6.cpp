// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/Form6.h"

#include <cstddef>
#include <utility>

#include "evaluation/logbook_pass.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "platform/text_file.h"
#include "shell/hourglass.h"
#include "shell/placing.h"

namespace nautrel {

/// The words in which the file and the print of the same text differ.
struct Form6::Headings {
  const char* printed;
  const char* general;
  const char* depth;
  const char* other;
};

Form6::Form6(Shell& app)
    : Form(app, "Form6", {.caption = "Statistic", .width = 7200, .height = 5400}),
      Data1(*this, "Data1", app.workspace(), Tabelle::Statistik),
      CrystalReport1(app.desktop()),
      CommonDialog1(
          app.desktop(),
          {.title = "Save statistic to", .filter = "*.*|*.*", .fileName = "Statistic.txt"}),
      app_(app) {
  SSTab1.pageHolds(0, {&Command4, &Command5, &Command6, &Command7});
  Data1.setVisible(false);
  setTabOrder(
      {&Command1, &Command2, &Command3, &SSTab1, &Command4, &Command5, &Command6, &Command7});
  Command1.setDefault(true);
  Command1.setCancel();
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Command6.Click = [this] { Command6_Click(); };
  Command7.Click = [this] { Command7_Click(); };
}

std::vector<Form6::FigureLine> Form6::figureLines() {
  return {{Label1, Label8, Label15},
          {Label6, Label9, Label16},
          {Label4, Label10, Label17, &Command4},
          {Label5, Label11, Label18, &Command5},
          {Label2, Label12, Label19, &Command6},
          {Label3, Label13, Label20, &Command7},
          {Label7, Label14, Label21}};
}

// The columns were named when the bands were ten metres, and the report binds to these names.
std::vector<Form6::ShareLine> Form6::depthLines() {
  return {{Label26, Label32, Label46, "0_bis_10", " "},
          {Label27, Label33, Label47, "11_bis_20"},
          {Label28, Label34, Label48, "21_bis_30"},
          {Label29, Label35, Label49, "31_bis_40"},
          {Label30, Label36, Label50, "41_bis_50"},
          {Label31, Label37, Label51, "größer_50", "     "}};
}

std::vector<Form6::ShareLine> Form6::otherLines() {
  return {{Label38, Label40, Label52, "Süsswasser"}, {Label39, Label41, Label53, "Salzwasser"},
          {Label57, Label59, Label61, "Boot"},       {Label58, Label60, Label62, "Ufer"},
          {Label42, Label44, Label54, "Rep"},        {Label43, Label45, Label55, "Deco"}};
}

void Form6::Form_Load() {
  const Hourglass wait(app_.MDIForm1());
  placeInFrame(*this, app_.MDIForm1());
  Data1.setDatabaseName(app_.databasePath());
  CrystalReport1.setReportFileName(app_.besideExecutable("Statistik.rpt"));
  show(passOverLogbook(app_, statisticColumns(), [&](Recordset& dives, const DiveDone& done) {
    return countStatistic(dives, locale(), done);
  }));
}

void Form6::show(const StatisticFigures& figures) {
  showFigures(figures);
  showShares(figures);
  auto& shared = app_.Modul1();
  shared.LetzteNummer = figures.lastNumber;
  shared.ErsteNummer = figures.firstNumber;
  setCaption("Statistic over " + std::to_string(figures.dives) + " dives (" +
             shared.ErsteNummer.joined(locale()) + " to " + shared.LetzteNummer.joined(locale()) +
             ")");
  Text1.setText(std::to_string(figures.dives));
}

void Form6::showFigures(const StatisticFigures& figures) {
  Label8.setCaption(figures.wholeDivetime);
  Label9.setCaption(figures.middleDivetime);
  Label14.setCaption(figures.middleDepth);
  const auto showRecord = [](const RecordFigure& record, Label& value, Button& dive) {
    value.setCaption(record.value);
    dive.setCaption(record.number);
  };
  showRecord(figures.longest, Label10, Command4);
  showRecord(figures.shortest, Label11, Command5);
  showRecord(figures.deepest, Label12, Command6);
  showRecord(figures.shallowest, Label13, Command7);
}

void Form6::showShares(const StatisticFigures& figures) {
  const auto showShare = [](const ShareFigure& share, const ShareLine& line) {
    line.count.setCaption(std::to_string(share.dives));
    line.percent.setCaption(share.percent);
  };
  const auto depths = depthLines();
  for (std::size_t i = 0; i < depths.size(); ++i) showShare(figures.depthBands[i], depths[i]);
  const ShareFigure* others[] = {&figures.sweetWater, &figures.saltWater,  &figures.fromBoat,
                                 &figures.fromShore,  &figures.repetitive, &figures.decoStop};
  const auto lines = otherLines();
  for (std::size_t i = 0; i < lines.size(); ++i) showShare(*others[i], lines[i]);
}

void Form6::Datenbank() {
  auto& row = Data1.Recordset();
  row.Edit();
  row.setField("Zeit_ges", Label8.caption() + " hours");
  row.setField("Zeit_durch", Label9.caption() + " min/dive");
  const auto byDive = [](const Label& value, const char* unit, const Button& dive) {
    return value.caption() + unit + " by dive-#: " + dive.caption();
  };
  row.setField("Längster", byDive(Label10, " min", Command4));
  row.setField("Kürzester", byDive(Label11, " min", Command5));
  row.setField("Tiefe_max", byDive(Label12, " ft", Command6));
  row.setField("Tiefe_min", byDive(Label13, " ft", Command7));
  row.setField("Tiefe_durch", Label14.caption() + " ft/dive");
  for (const auto& lines : {depthLines(), otherLines()})
    for (const ShareLine& line : lines)
      row.setField(line.column, line.count.caption() + " Dives  =  " + line.percent.caption());
  row.Update();
}

void Form6::Datei() {
  writeStatistic(CommonDialog1.FileName(), {"Statistic printed: ", "General:", "Depth:", "Other:"});
}

void Form6::Drucken() {
  const auto path = app_.besideExecutable("Statistik.§$§");
  writeStatistic(path, {"Statistik gedruckt am: ", "Allgemeines:", "Tiefen:", "Sonstiges:"});
  RichTextBox1.setText(readTextFile(path));
  desktop().printText(RichTextBox1.text());
  deleteFile(path);
}

void Form6::writeStatistic(const std::string& path, const Headings& headings) {
  TextFile file(path);
  file.line(headings.printed, generalDate(desktop().now(), locale()), " über ", Text1.text(),
            " Tauchgänge");
  file.line();
  file.line(headings.general);
  file.line("~~~~~~~~~~~~");
  for (const FigureLine& line : figureLines()) write(file, line);
  file.line();
  file.line(headings.depth);
  file.line("~~~~~~~");
  for (const ShareLine& line : depthLines()) write(file, line);
  file.line();
  file.line(headings.other);
  file.line("~~~~~~~~~~");
  const auto others = otherLines();
  for (std::size_t i = 0; i < others.size(); ++i) {
    const bool nextPair = i != 0 && i % 2 == 0;
    if (nextPair) file.line();
    write(file, others[i]);
  }
}

void Form6::write(TextFile& file, const FigureLine& line) {
  const auto& [caption, value, unit, dive] = line;
  if (dive == nullptr)
    file.line(caption.caption(), Tab{28}, value.caption(), Tab{34}, unit.caption());
  else
    file.line(caption.caption(), Tab{28}, value.caption(), Tab{34}, unit.caption(), Tab{59},
              dive->caption());
}

void Form6::write(TextFile& file, const ShareLine& line) {
  file.line(line.indent, line.caption.caption(), Tab{15}, line.count.caption(), Tab{19}, "=  ",
            line.percent.caption());
}

void Form6::Command1_Click() {
  Unload();
}

void Form6::Command2_Click() {
  Datenbank();
  if (MsgBox("Print now?", kAskNo, "Print statistic") != kYes) return;
  CrystalReport1.setDestination(Report::kPrinter);
  CrystalReport1.Action(1);
}

void Form6::Command3_Click() {
  CommonDialog1.setFlags(6);
  try {
    CommonDialog1.ShowSave();
  } catch (const RunTimeError& failure) {
    if (failure.number == DialogCancelled) return;
  }
  resumeNext([&] { Datei(); });
}

void Form6::Command4_Click() {
  dropMenu(Command4, "4");
}

void Form6::Command5_Click() {
  dropMenu(Command5, "5");
}

void Form6::Command6_Click() {
  dropMenu(Command6, "6");
}

void Form6::Command7_Click() {
  dropMenu(Command7, "7");
}

void Form6::dropMenu(Button& button, const char* digit) {
  app_.Modul1().StatistikKnopf = digit;
  Command1.SetFocus();
  desktop().popupMenu(app_.MDIForm1().Menü8, &button);
}

const Button& Form6::recordButton(const Value& digit) const {
  for (const Button* button : {&Command4, &Command5, &Command6, &Command7})
    if (button->name() == "Command" + digit.joined(locale())) return *button;
  raise(ObjectNotSet);
}

}  // namespace nautrel
