// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/LookAfterPage.h"

#include "companion/Companion.h"
#include "companion/logbook_facts.h"
#include "exchange/answer.h"
#include "exchange/dates.h"
#include "platform/files.h"
#include "platform/form.h"

namespace nautrel::exchange {
namespace {

constexpr int kInformation = 64;
constexpr int kExclamation = 48;

}  // namespace

LookAfterPage::LookAfterPage(Form& form, Companion& app) : form_(form), app_(app) {
  CheckFrame.holds({&CheckResult, &Findings, &CheckNow});
  CopyFrame.holds({&CopyResult, &KeepOnly, &KeepNumber, &MakeCopy});
  PutBackFrame.holds({&NowChanged, &NowSize, &NowDives, &CopyName, &CopyChanged, &CopySize,
                      &CopyDives, &ChooseCopy, &PutBack});
  CheckNow.Click = [this] { CheckNow_Click(); };
  MakeCopy.Click = [this] { MakeCopy_Click(); };
  ChooseCopy.Click = [this] { ChooseCopy_Click(); };
  PutBack.Click = [this] { PutBack_Click(); };
  KeepNumber.Change = [this] { KeepOnly.setOn(true); };
  Findings.setVisible(false);
  CheckResult.setCaption(
      "Looks for damage in the file, for numbers and dates that are none, and for pictures that "
      "are gone. Nothing is changed.");
  CopyResult.setCaption("A copy goes into a folder that you choose, under the date of today.");
}

std::vector<Control*> LookAfterPage::controls() {
  return {&CheckFrame, &CopyFrame, &PutBackFrame};
}

void LookAfterPage::load() {
  const auto facts = factsOf(app_.logbook(), app_.desktop().locale());
  NowChanged.setCaption(facts.changed);
  NowSize.setCaption(facts.size);
  NowDives.setCaption(facts.dives);
  showCopy();
}

void LookAfterPage::CheckNow_Click() {
  std::vector<Finding> found;
  const auto& locale = app_.desktop().locale();
  const bool done = app_.attemptLong("Checking the logbook", [&](const Progress&) {
    found = checkLogbook(app_.logbook(), locale);
  });
  if (!done) return;
  Findings.Clear();
  for (const auto& finding : found) Findings.AddItem(finding.text);
  Findings.setVisible(!found.empty());
  CheckResult.setCaption(found.empty() ? "Nothing is wrong with the logbook."
                                       : counted(static_cast<int>(found.size()), "finding") + ":");
}

void LookAfterPage::MakeCopy_Click() {
  const auto keep = readWhole(KeepNumber.text());
  if (KeepOnly.on() && keep.value_or(0) < 1) {
    KeepNumber.SetFocus();
    app_.desktop().MsgBox("Please enter how many copies are kept, at least 1.", kExclamation);
    return;
  }
  const auto folder = app_.desktop().openFolder({.title = "Folder for the copy"});
  if (!folder) return;
  std::string said;
  const auto copy = [&, now = app_.now()](const Progress&) {
    said =
        answerOf(backUpLogbook(app_.logbook(), *folder, KeepOnly.on() ? keep : std::nullopt, now))
            .text;
  };
  if (app_.attemptLong("Copying the logbook", copy)) CopyResult.setCaption(said);
}

void LookAfterPage::ChooseCopy_Click() {
  const auto file =
      app_.desktop().openFile({.title = "Put a copy back", .filter = "Logbooks (*.mdb)|*.mdb"});
  if (!file) return;
  copy_ = *file;
  showCopy();
}

void LookAfterPage::showCopy() {
  const auto facts = copy_.empty() ? LogbookFacts{} : factsOf(copy_, app_.desktop().locale());
  CopyName.setCaption(copy_.empty() ? "No copy chosen yet" : fileNameOf(copy_));
  CopyChanged.setCaption(facts.changed);
  CopySize.setCaption(facts.size);
  CopyDives.setCaption(facts.dives);
  std::string why;
  if (copy_.empty())
    why = "Choose a copy first.";
  else if (sameFile(nativePath(copy_), nativePath(app_.logbook())))
    why = "This is the logbook itself.";
  else if (!facts.sound)
    why = "This file is no logbook.";
  allow(PutBack, why);
}

void LookAfterPage::PutBack_Click() {
  const auto& locale = app_.desktop().locale();
  const auto line = [&](const std::string& path) {
    const auto facts = factsOf(path, locale);
    return facts.dives + ", " + facts.size + ", changed " + facts.changed + ".\n";
  };
  const auto question = "The logbook: " + line(app_.logbook()) + "The copy: " + line(copy_) +
                        "\nThe copy takes the place of the logbook, which is kept beside it under "
                        "another name. Shall it?";
  if (app_.desktop().MsgBox(question, kAskNo) != kYes) return;
  std::string said;
  const bool done =
      app_.attemptLong("Putting the copy back", [&, now = app_.now()](const Progress&) {
        said = answerOf(restoreLogbook(app_.logbook(), copy_, now), copy_).text;
      });
  if (!done) return;
  raiseEvent(Replaced);
  load();
  app_.desktop().MsgBox(said, kInformation);
}

}  // namespace nautrel::exchange
