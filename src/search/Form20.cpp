// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/Form20.h"

#include "dives/dive_columns.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"

namespace nautrel {

Form20::Form20(Shell& app)
    : TermSearchForm(app, "Form20", {.caption = "Full search", .width = 8100, .height = 4800},
                     {.opened = windowEntry(kNumber).search,
                      .order = "First dive-# must be lower than last dive-#!",
                      .rangeFiltered = false,
                      .view = "&View",
                      .close = "&Close"}) {
  setTabOrder({&Combo1, &Text1, &SpinButton1, &Text2, &SpinButton2, &Check1});
}

// The whole window is disabled while the pass runs, and stays so if the pass fails.
void Form20::Command1_Click() {
  Hourglass wait(app_.MDIForm1());
  Überprüfen();
  if (!Text3.isEmpty()) return;
  setEnabled(false);
  Command1.setEnabled(false);
  const auto term = takeTerm();
  const auto options = Check1.on() ? RichTextBox::rtfWholeWord : RichTextBox::rtfNone;
  scan({}, [&](const Recordset& row) {
    writeRecord(row);
    // A place that 16 bits cannot hold ends the pass.
    return toInt16(static_cast<double>(RichTextBox1.Find(term, options))) != -1;
  });
  setEnabled(true);
  showOutcome("'" + term + "' not found");
}

// Each piece has a blank behind it; the date brings one of its own.
void Form20::writeRecord(const Recordset& row) {
  auto text = RichTextBox1.takeText();
  text.clear();
  for (const auto& column : diveColumns()) {
    const auto ordinal = column.ordinal;
    if (const auto* word = column.words.search) {
      if (row.fieldIsYes(ordinal)) text.append(word) += ' ';
      continue;
    }
    text += row.fieldText(ordinal);
    text += ordinal == Feld::Tag || ordinal == Feld::Monat ? '.' : ' ';
    if (ordinal == Feld::Jahr) text += ' ';
  }
  RichTextBox1.setText(std::move(text));
}

void Form20::neue_Suche() {
  SearchForm::neue_Suche();
  RichTextBox1.setText("");
}

}  // namespace nautrel
