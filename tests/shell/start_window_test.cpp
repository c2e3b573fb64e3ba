#include <algorithm>

#include "shell/Form18.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

struct StartCase {
  const char* setting;
  const char* window;  // null: none
};

constexpr StartCase kStarts[] = {{"<no>", nullptr},
                                 {"Print dive-list", "Form9"},
                                 {"Personal information", "Form7"},
                                 {"Dive equipment", "Form15"},
                                 {"Sort logbook", "Form8"},
                                 {"Insert dive", "Form2"},
                                 {"Edit dive", "Form4"},
                                 {"Delete dive", "Form5"},
                                 {"View logbook", "Form3"},
                                 {"Logbook table", "Form13"},
                                 {"Search a word", "Form12"},
                                 {"Search a number", "Form14"},
                                 {"Full search", "Form20"},
                                 {"Statistic", "Form6"},
                                 {"Graph years", "Form10"},
                                 {"Graph month", "Form11"},
                                 {"Unit calculations", "Form21"},
                                 {"Calculations", "Form22"}};

class StartWindow : public LogbookTest, public ::testing::WithParamInterface<StartCase> {
 protected:
  /// Chooses the window in the preferences, as a person does, and begins the next run.
  void chooseAndRestart(const std::string& setting) {
    start();
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
    for (const auto* form : app->loadedForms())
      if (form->visible()) names.push_back(form->name());
    return names;
  }
};

TEST_P(StartWindow, OpensAsThePreferencesSay) {
  addDives(1, 3);
  chooseAndRestart(GetParam().setting);
  EXPECT_EQ(desktop->settings.at({"Start", "Window"}), GetParam().setting);
  Texts expected{"MDIForm1"};
  if (GetParam().window != nullptr) expected.push_back(GetParam().window);
  EXPECT_EQ(openWindows(), expected);
}

INSTANTIATE_TEST_SUITE_P(Settings, StartWindow, ::testing::ValuesIn(kStarts),
                         [](const auto& start) {
                           return std::string(start.param.window != nullptr ? start.param.window
                                                                            : "None");
                         });

}  // namespace
}  // namespace nautrel
