// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/SearchForm.h"

namespace nautrel {

/// A search for a term, with the terms of the earlier searches at hand.
class TermSearchForm : public SearchForm {
 public:
  using SearchForm::SearchForm;

  ComboBox Combo1{*this, "Combo1", ComboBox::Style::FreeText};

 protected:
  /// Puts the term at the end of the list, be it empty or known, and locks its box.
  std::string takeTerm();

 private:
  void clearTerm() override;
  Control& termBox() override { return Combo1; }
};

}  // namespace nautrel
