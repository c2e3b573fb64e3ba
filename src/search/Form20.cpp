#include "search/Form20.h"

#include "shell/MDIForm1.h"
#include "shell/Modul1.h"
#include "shell/Nautrel.h"
#include "store/contract.h"

namespace nautrel {
namespace {

struct FlagWord {
  int ordinal;
  const char* word;
};

constexpr int kBeforeDate[] = {Feld::Nr, Feld::Land, Feld::Ort, Feld::Platz};
constexpr int kBehindDate[] = {Feld::Buddy, Feld::Zeit,   Feld::Tiefe, Feld::Lang,
                               Feld::Bars,  Feld::Wetter, Feld::Anzug, Feld::Höhe,
                               Feld::Liter, Feld::Bare,   Feld::Blei};
constexpr FlagWord kFlagWords[] = {
    {Feld::Salz, "Salzwasser"},       {Feld::Süß, "Süßwasser"},
    {Feld::Ufer, "vom Ufer"},         {Feld::Boot, "vom Boot"},
    {Feld::Deco, "Deco-Stop"},        {Feld::Alu, "Aluflasche"},
    {Feld::Stahl, "Stahlflasche"},    {Feld::Sichtg, "gute Sicht"},
    {Feld::Sichtm, "mittlere Sicht"}, {Feld::Sichts, "schlechte Sicht"},
    {Feld::Rep, "Rep.-TG"},
};

}  // namespace

Form20::Form20(Nautrel& app)
    : TermSearchForm(app, "Form20", {.caption = "Full search", .width = 8100, .height = 4800},
                     {.opened = &Modul1::VonVollsuche,
                      .order = "First dive-# must be lower than last dive-#!",
                      .rangeFiltered = false,
                      .view = "&View",
                      .close = "&Close"}) {
  setTabOrder({&Combo1, &Text1, &SpinButton1, &Text2, &SpinButton2, &Check1, &Command1, &Command2,
               &List1, &Option1, &Option2, &Option3, &Command3, &Command4});
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
  const auto add = [&](int ordinal, const char* behind = " ") {
    row.appendField(text, ordinal);
    text += behind;
  };
  for (const int ordinal : kBeforeDate) add(ordinal);
  add(Feld::Tag, ".");
  add(Feld::Monat, ".");
  add(Feld::Jahr, "  ");
  for (const int ordinal : kBehindDate) add(ordinal);
  for (const auto& [ordinal, word] : kFlagWords)
    if (row.Fields(ordinal).isYes()) text.append(word) += ' ';
  add(Feld::Grafik);
  RichTextBox1.setText(std::move(text));
}

void Form20::neue_Suche() {
  SearchForm::neue_Suche();
  RichTextBox1.setText("");
}

}  // namespace nautrel
