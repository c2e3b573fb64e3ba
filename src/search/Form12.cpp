// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/Form12.h"

#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/hourglass.h"

namespace nautrel {
namespace {

struct WordColumn {
  int ordinal;
  CheckBox Form12::*box;
};

// In the order of the test.
constexpr WordColumn kColumns[] = {
    {Feld::Land, &Form12::Check1},  {Feld::Ort, &Form12::Check2},  {Feld::Platz, &Form12::Check3},
    {Feld::Buddy, &Form12::Check4}, {Feld::Lang, &Form12::Check5}, {Feld::Wetter, &Form12::Check6},
    {Feld::Anzug, &Form12::Check7},
};

/// The beginning of a column's value against a term in lower case.
class Term {
 public:
  explicit Term(const std::string& term) : lower_(lowerCase(term)), length_(characters(term)) {}

  bool begins(const Value& value, const Locale& locale) const {
    if (value.isNull()) return false;
    return lowerCase(firstCharacters(value.text(locale), length_)) == lower_;
  }

 private:
  std::string lower_;
  std::size_t length_;
};

}  // namespace

Form12::Form12(Shell& app)
    : TermSearchForm(app, "Form12", {.caption = "Search a word", .width = 8100, .height = 5700},
                     {.opened = windowEntry(kNumber).search,
                      .order = "First dive-# must be lower than last dive-#."}) {
  Frame3.holds({&Check1, &Check2, &Check3, &Check4, &Check5, &Check6, &Check7});
  setTabOrder({&Combo1, &Text1, &SpinButton1, &Text2, &SpinButton2, &Check1, &Check2, &Check3,
               &Check4, &Check5, &Check6, &Check7});
}

// The verdict outlives its row on purpose: it changes only with a column that begins with the term
// and is to be searched, or with a row in which none begins with it.
void Form12::Command1_Click() {
  Hourglass wait(app_.MDIForm1());
  Überprüfen();
  if (!Text3.isEmpty()) return;
  Command1.setEnabled(false);
  const auto typed = takeTerm();
  const Term term(typed);
  bool found = false;
  scan(columnsOf(kColumns), [&](const Recordset& row) {
    for (const auto& [ordinal, box] : kColumns) {
      if (!term.begins(row.Fields(ordinal), locale())) continue;
      if ((this->*box).on()) found = true;
      return found;
    }
    return found = false;
  });
  showOutcome("'" + typed + "' not found.");
}

}  // namespace nautrel
