// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/GiveOutPage.h"

#include "companion/Companion.h"
#include "companion/logbook_facts.h"
#include "exchange/answer.h"
#include "exchange/dates.h"
#include "platform/form.h"

namespace nautrel::exchange {
namespace {

constexpr int kAskBeforeOverwriting = 2;
constexpr int kExclamation = 48;

}  // namespace

GiveOutPage::GiveOutPage(Form& form, Companion& app) : form_(form), app_(app) {
  FormatFrame.holds({&Uddf, &Csv});
  RangeFrame.holds({&AllDives, &SomeDives, &FromNumber, &ToLabel, &ToNumber});
  ExtrasFrame.holds({&WithCard, &WithEquipment});
  Uddf.Click = Csv.Click = AllDives.Click = SomeDives.Click = [this] { show(); };
  // Who types a number wants the range.
  FromNumber.Change = ToNumber.Change = [this] { SomeDives.setOn(true); };
  WriteFile.Click = [this] { WriteFile_Click(); };
}

std::vector<Control*> GiveOutPage::controls() {
  return {&Holds, &FormatFrame, &CannotCarry, &RangeFrame, &ExtrasFrame, &Written, &WriteFile};
}

void GiveOutPage::load() {
  Holds.setCaption("The logbook holds " + factsOf(app_.logbook()).dives + ".");
  show();
}

ExportOptions GiveOutPage::options() const {
  ExportOptions options{.format = Csv.on() ? Format::Csv : Format::Uddf,
                        .card = WithCard.on(),
                        .equipment = WithEquipment.on(),
                        .overwrite = true};
  if (!SomeDives.on()) return options;
  options.from = readWhole(FromNumber.text());
  options.to = readWhole(ToNumber.text());
  return options;
}

void GiveOutPage::show() {
  std::string text;
  for (const auto& sentence : cannotCarry(options())) text += (text.empty() ? "" : "\n") + sentence;
  CannotCarry.setCaption(text);
  const std::string why = Csv.on() ? "CSV holds dives alone." : "";
  allow(WithCard, why);
  allow(WithEquipment, why);
}

std::optional<ExportOptions> GiveOutPage::checkedOptions() {
  const auto chosen = options();
  if (!SomeDives.on()) return chosen;
  std::string wrong;
  for (auto* box : {&ToNumber, &FromNumber}) {
    if (box->isEmpty() || readWhole(box->text())) continue;
    wrong = "'" + box->text() + "' is no dive number.";
    box->SetFocus();
  }
  if (wrong.empty() && FromNumber.isEmpty() && ToNumber.isEmpty()) {
    wrong = "Please enter from which or to which number the dives are wanted.";
    FromNumber.SetFocus();
  }
  if (wrong.empty() && chosen.from && chosen.to && *chosen.from > *chosen.to) {
    wrong = "The first number is behind the last one.";
    FromNumber.SetFocus();
  }
  if (wrong.empty()) return chosen;
  app_.desktop().MsgBox(wrong, kExclamation);
  return {};
}

void GiveOutPage::WriteFile_Click() {
  const auto wanted = checkedOptions();
  if (!wanted) return;
  const bool csv = wanted->format == Format::Csv;
  const auto file =
      app_.desktop().saveFile({.title = "Give dives out",
                               .filter = csv ? "CSV (*.csv)|*.csv" : "UDDF (*.uddf)|*.uddf",
                               .fileName = csv ? "Dives.csv" : "Dives.uddf",
                               .flags = kAskBeforeOverwriting,
                               .ending = csv ? ".csv" : ".uddf"});
  if (file) write(*file, *wanted);
}

void GiveOutPage::write(const std::string& file, const ExportOptions& options) {
  std::string said;
  const auto& locale = app_.desktop().locale();
  const bool done = app_.attemptLong("Writing the dives", [&](const Progress& progress) {
    Workspace workspace;
    const auto report = exportLogbook(workspace, app_.logbook(), file, options, locale, progress);
    said = answerOf(report, file, options).text;
  });
  if (!done) return;
  Written.setText(said);
  Written.setVisible(true);
}

}  // namespace nautrel::exchange
