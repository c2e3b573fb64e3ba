// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/TakeOverPage.h"

#include <algorithm>

#include "companion/Companion.h"
#include "companion/preview_texts.h"
#include "exchange/dive_rows.h"
#include "exchange/hold.h"
#include "exchange/import_report.h"
#include "exchange/output_file.h"
#include "platform/form.h"

namespace nautrel::exchange {
namespace {

constexpr int kAskBeforeOverwriting = 2;

/// The diver's card as the logbook has it.
bool cardIsBlank(const std::string& logbook) {
  Workspace workspace;
  auto cards = workspace.OpenDatabase(logbook).OpenRecordset(Tabelle::Benutzer);
  return cards.Eof() || isBlank(readRow(cards));
}

}  // namespace

/// One of the questions that a file may leave open, as the window asks it.
struct TakeOverPage::Asked {
  Question::About about;
  Frame& frame;
  Label& example;
  OptionButton& first;
  OptionButton& second;

  bool isAnswered() const { return !frame.visible() || first.on() || second.on(); }
};

TakeOverPage::TakeOverPage(Form& form, Companion& app) : form_(form), app_(app) {
  AskDates.holds({&DatesExample, &DayFirst, &MonthFirst});
  AskDurations.holds({&DurationsExample, &MinutesSeconds, &HoursMinutes});
  AskUnits.holds({&UnitsExample, &Metric, &Imperial});
  ChooseFile.Click = [this] { ChooseFile_Click(); };
  TakeOver.Click = [this] { TakeOver_Click(); };
  SaveReport.Click = [this] { SaveReport_Click(); };
  TickAll.Click = [this] { tickAll(true); };
  TickNone.Click = [this] { tickAll(false); };
  TakeCard.Click = TakeEquipment.Click = [this] { wantExtras(); };
  Dives.Select = [this] { Dives_Select(); };
  Dives.Tick = [this](int row) { Dives_Tick(row); };
  for (const auto& asked : questions())
    asked.first.Click = asked.second.Click = [this] { makePlan(); };
}

std::vector<Control*> TakeOverPage::controls() {
  return {&FileName, &ChooseFile, &Summary,       &AskDates,   &AskDurations,
          &AskUnits, &Dives,      &Details,       &Report,     &TickAll,
          &TickNone, &TakeCard,   &TakeEquipment, &SaveReport, &TakeOver};
}

std::vector<TakeOverPage::Asked> TakeOverPage::questions() {
  return {
      {Question::About::Dates, AskDates, DatesExample, DayFirst, MonthFirst},
      {Question::About::Durations, AskDurations, DurationsExample, MinutesSeconds, HoursMinutes},
      {Question::About::Units, AskUnits, UnitsExample, Metric, Imperial}};
}

void TakeOverPage::load() {
  ask();
  show();
}

void TakeOverPage::forget() {
  if (!isUnderWay()) return;
  file_.reset();
  FileName.setText("");
  Dives.setRows(0, {});
  ask();
  show();
}

void TakeOverPage::ChooseFile_Click() {
  const auto file =
      app_.desktop().openFile({.title = "Take over dives",
                               .filter = "Dives (*.uddf; *.csv)|*.uddf;*.xml;*.csv;*.tsv;*.txt"});
  if (file) open(*file);
}

void TakeOverPage::open(const std::string& path) {
  auto file = std::make_unique<File>(path);
  const auto read = [&](const Progress& progress) {
    file->source = openSource(path, {}, progress);
    const bool mayFill = cardIsBlank(app_.logbook());
    if (isBlank(file->source->card()))
      file->noCard = "The file holds no diver's card.";
    else if (!mayFill)
      file->noCard = "Your card is filled and stays as it is.";
    if (file->source->equipment().empty()) file->noEquipment = "The file holds no equipment.";
  };
  if (!app_.attemptLong("Reading '" + fileNameOf(path) + "'", read)) return;
  file_ = std::move(file);
  FileName.setText(path);
  ask();
  makePlan();
  focusNext();
}

// Where the diver goes on: what is asked, or the dives.
void TakeOverPage::focusNext() {
  for (const auto& asked : questions())
    if (!asked.isAnswered()) return asked.first.SetFocus();
  if (isUnderWay()) Dives.SetFocus();
}

void TakeOverPage::ask() {
  const auto open = file_ ? file_->source->questions() : std::vector<Question>();
  for (const auto& asked : questions()) {
    const auto isIt = [&](const Question& question) { return question.about == asked.about; };
    const auto found = std::find_if(open.begin(), open.end(), isIt);
    asked.first.setOn(false);
    asked.second.setOn(false);
    asked.frame.setVisible(found != open.end());
    if (found == open.end()) continue;
    const auto words = wordsOf(*found);
    asked.example.setCaption(words.question);
    asked.first.setCaption(words.first);
    asked.second.setCaption(words.second);
  }
}

bool TakeOverPage::isAnswered() {
  const auto all = questions();
  return std::all_of(all.begin(), all.end(), [](const auto& asked) { return asked.isAnswered(); });
}

Answers TakeOverPage::answers() const {
  Answers answers;
  if (DayFirst.on() || MonthFirst.on())
    answers.dates = DayFirst.on() ? DateOrder::DayFirst : DateOrder::MonthFirst;
  if (MinutesSeconds.on() || HoursMinutes.on())
    answers.durations =
        HoursMinutes.on() ? DurationForm::HoursMinutes : DurationForm::MinutesSeconds;
  if (Metric.on() || Imperial.on())
    answers.units = Metric.on() ? UnitSystem::Metric : UnitSystem::Imperial;
  return answers;
}

void TakeOverPage::makePlan() {
  // The screen goes on while it is made, and must find no row of the one before.
  Dives.setRows(0, {});
  file_->plan.reset();
  if (isAnswered()) {
    const ImportOptions options{.card = file_->noCard.empty(), .equipment = true};
    const auto given = answers();
    const auto& locale = app_.desktop().locale();
    app_.attemptLong("Looking the dives up in the logbook", [&](const Progress&) {
      Workspace workspace;
      file_->plan =
          ImportPlan::make(*file_->source, given, workspace, app_.logbook(), locale, options);
    });
  }
  if (auto* planned = plan()) {
    planned->wantCard(TakeCard.on());
    planned->wantEquipment(TakeEquipment.on());
  }
  const int count = plan() == nullptr ? 0 : static_cast<int>(plan()->dives().size());
  Dives.setRows(count, [this](int row) { return rowOf(row); });
  show();
}

void TakeOverPage::wantExtras() {
  if (auto* planned = plan()) {
    planned->wantCard(TakeCard.on());
    planned->wantEquipment(TakeEquipment.on());
  }
  show();
}

TickTable::Row TakeOverPage::rowOf(int index) const {
  const auto& dive = plan()->dives()[static_cast<std::size_t>(index)];
  TickTable::Row row{cellsOf(dive, app_.desktop().locale()), dive.fate == Fate::Taken};
  if (!dive.source.leftOutBecause.empty())
    row.fixed = "It cannot be taken: " + dive.source.leftOutBecause + ".";
  return row;
}

void TakeOverPage::Dives_Select() {
  const int row = Dives.current();
  Details.setText(row < 0 || plan() == nullptr
                      ? std::string()
                      : reportText(plan()->dives()[static_cast<std::size_t>(row)]));
}

// What is not wanted is left out; of a duplicate the diver insists.
void TakeOverPage::Dives_Tick(int row) {
  const auto place = static_cast<std::size_t>(row);
  const auto& dive = plan()->dives()[place];
  const bool take = dive.fate != Fate::Taken;
  const bool repeats = dive.duplicateOf.has_value();
  if (dive.unwanted || !repeats) plan()->leaveOut(place, !take);
  if (repeats) plan()->insist(place, take);
  planChanged();
}

void TakeOverPage::tickAll(bool yes) {
  plan()->leaveAllOut(!yes);
  planChanged();
}

void TakeOverPage::planChanged() {
  Dives.refreshRows();
  Dives_Select();
  show();
}

std::string TakeOverPage::whyNotTaken() {
  if (!file_) return "Choose a file first.";
  if (!isAnswered()) return "Answer what is asked above first.";
  if (plan() == nullptr) return "The dives could not be looked up in the logbook.";
  if (file_->taken) return "The dives are taken over.";
  if (auto why = plan()->refusal(); !why.empty()) return why;
  if (plan()->counts().taken == 0 && !plan()->takesCard() && plan()->takesEquipment() == 0)
    return "Nothing is ticked.";
  return {};
}

void TakeOverPage::show() {
  const bool planned = isUnderWay();
  const bool taken = file_ && file_->taken;
  for (Control* control : std::initializer_list<Control*>{&Dives, &Details, &TickAll, &TickNone,
                                                          &TakeCard, &TakeEquipment})
    control->setVisible(planned);
  if (taken)
    for (const auto& asked : questions()) asked.frame.setVisible(false);
  Report.setVisible(taken);
  allow(TakeOver, whyNotTaken());
  allow(SaveReport, taken ? "" : "There is a report when the dives are taken over.");
  if (file_) {
    allow(TakeCard, file_->noCard);
    allow(TakeEquipment, file_->noEquipment);
  }
  Summary.setCaption(summary());
}

std::string TakeOverPage::summary() {
  if (!file_)
    return "Choose a file that another program has written, UDDF or CSV, or drop it on this "
           "window. You will see what becomes of each dive before anything is stored.";
  if (!isAnswered())
    return counted(static_cast<int>(file_->source->diveCount()), "dive") +
           " in the file. It leaves something open that you know:";
  if (plan() == nullptr) return {};
  return file_->taken ? takenText(*plan()) : plannedText(*plan());
}

void TakeOverPage::TakeOver_Click() {
  bool stored = false;
  app_.attemptLong("Taking the dives over", [&](const Progress& progress) {
    const Hold hold(app_.logbook());
    Workspace workspace;
    stored = plan()->execute(workspace, app_.logbook(), progress);
  });
  if (!stored) return;
  file_->taken = true;
  Report.setText(reportText(*plan()));
  show();
  Report.SetFocus();
}

void TakeOverPage::SaveReport_Click() {
  const auto name = app_.desktop().saveFile({.title = "Save report",
                                             .filter = "Text (*.txt)|*.txt",
                                             .fileName = "Report.txt",
                                             .flags = kAskBeforeOverwriting,
                                             .ending = ".txt"});
  if (!name) return;
  app_.attempt([&] {
    OutputFile file(*name, app_.ownFiles(), true);
    file.write(Report.text());
    file.commit();
  });
}

}  // namespace nautrel::exchange
