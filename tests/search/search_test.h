// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <ostream>

#include "search/Form12.h"
#include "search/Form14.h"
#include "search/Form19.h"
#include "search/Form20.h"
#include "support/logbook.h"

namespace nautrel {

using Texts = std::vector<std::string>;

/// The three searches over a logbook of the test's own dives.
class SearchTest : public LogbookTest {
 protected:
  /// Numbers the dives from `first` on, adds them and opens the main window.
  void startWith(std::vector<Dive> dives, int first = 1) {
    for (auto& dive : dives) {
      dive["Nr"] = std::to_string(first++);
      add(dive);
    }
    start();
  }
  Form12& words() {
    click(app->MDIForm1().Menü3b);
    return app->Form12();
  }
  Form14& numbers() {
    click(app->MDIForm1().Menü3c);
    return app->Form14();
  }
  Form20& everything() {
    click(app->MDIForm1().Menü3e);
    return app->Form20();
  }

  static void range(SearchForm& form, std::string_view first, std::string_view last) {
    clear(form.Text1);
    paste(form.Text1, first);
    clear(form.Text2);
    paste(form.Text2, last);
  }
  /// Types the term and starts; gives the hits.
  static Texts search(TermSearchForm& form, std::string_view term) {
    if (form.Command2.enabled()) click(form.Command2);
    type(form.Combo1, term);
    press(form, Key::Enter);
    return form.List1.lines();
  }
  static Texts search(Form14& form, std::string_view number) {
    if (form.Command2.enabled()) click(form.Command2);
    type(form.Text4, number);
    press(form, Key::Enter);
    return form.List1.lines();
  }
  static void turn(CheckBox& box, bool on) {
    if (box.on() != on) click(box);
  }
};

}  // namespace nautrel
