// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/TermSearchForm.h"

namespace nautrel {

std::string TermSearchForm::takeTerm() {
  Combo1.AddItem(Combo1.text());
  Combo1.setEnabled(false);
  return Combo1.text();
}

void TermSearchForm::clearTerm() {
  Combo1.setText("");
  Combo1.setEnabled(true);
}

}  // namespace nautrel
