// SPDX-License-Identifier: GPL-2.0-or-later
#include <algorithm>

#include "app/Form18.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class StartWindow : public LogbookTest {
 protected:
  /// Chooses the window in the preferences, as a person does, and begins the next run.
  void chooseAndRestart(const std::string& setting) {
    click(app->MDIForm1().Menü1g);
    auto& preferences = app->Form18();
    const auto& lines = preferences.Combo1.lines();
    choose(preferences.SSTab1, 1);
    choose(preferences.Combo1,
           static_cast<int>(std::find(lines.begin(), lines.end(), setting) - lines.begin()));
    click(preferences.Command3);
    restart();
  }
  Texts openWindows() {
    Texts names;
    if (app->MDIForm1().visible()) names.push_back("MDIForm1");
    for (const auto* form : app->stack()) names.push_back(form->name());
    return names;
  }
};

TEST_F(StartWindow, OpensAsThePreferencesSay) {
  const std::pair<const char*, const char*> starts[] = {
      {"Print dive-list", "Form9"},  {"Personal information", "Form7"},
      {"Dive equipment", "Form15"},  {"Sort logbook", "Form8"},
      {"Insert dive", "Form2"},      {"Edit dive", "Form4"},
      {"Delete dive", "Form5"},      {"View logbook", "Form3"},
      {"Logbook table", "Form13"},   {"Search a word", "Form12"},
      {"Search a number", "Form14"}, {"Full search", "Form20"},
      {"Statistic", "Form6"},        {"Graph years", "Form10"},
      {"Graph month", "Form11"},     {"Unit calculations", "Form21"},
      {"Calculations", "Form22"}};
  desktop->settings[{"Start", "Window"}] = "Insert dive";
  start();
  EXPECT_EQ(openWindows(), Texts{"MDIForm1"}) << "the logbook is empty";
  addDives(1, 3);
  for (const auto& [setting, window] : starts) {
    SCOPED_TRACE(setting);
    desktop->settings.clear();
    restart();
    chooseAndRestart(setting);
    EXPECT_EQ(desktop->settings.at({"Start", "Window"}), setting);
    EXPECT_EQ(openWindows(), (Texts{"MDIForm1", window}));
    const auto& opened = *app->activeForm();
    app->MDIForm1().userResized(0, 0, 24000, 18000);
    app->MDIForm1().userSettled();
    EXPECT_EQ(opened.Left(), 12000 - opened.Width() / 2 - 90);
    EXPECT_EQ(opened.Top(), 9000 - opened.Height() / 2 - 740);
  }
  chooseAndRestart("<no>");
  EXPECT_EQ(openWindows(), Texts{"MDIForm1"});
  desktop->settings[{"Start", "Window"}] = "insert dive";
  restart();
  EXPECT_EQ(openWindows(), Texts{"MDIForm1"}) << "no name of a window";
}

}  // namespace
}  // namespace nautrel
