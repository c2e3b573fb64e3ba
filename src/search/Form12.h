// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/TermSearchForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Search a word": dives with a column that begins with the term.
class Form12 : public TermSearchForm {
 public:
  static constexpr int kNumber = Windows::SearchWord;
  explicit Form12(Shell& app);

  void Command1_Click() override;

  Frame Frame3{*this, "Frame3", "Search in"};
  CheckBox Check1{*this, "Check1", "Country", true};
  CheckBox Check2{*this, "Check2", "City/Island", true};
  CheckBox Check3{*this, "Check3", "Diveplace", true};
  CheckBox Check4{*this, "Check4", "Dive&buddy", true};
  CheckBox Check5{*this, "Check5", "Comments", true};
  CheckBox Check6{*this, "Check6", "Weather", true};
  CheckBox Check7{*this, "Check7", "Divesuit", true};
};

}  // namespace nautrel
