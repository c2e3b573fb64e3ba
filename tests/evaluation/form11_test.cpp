// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/Form11.h"

#include "evaluation/evaluation_test.h"

namespace nautrel {
namespace {

class GraphMonth : public EvaluationTest {
 protected:
  Form11& open(const std::vector<Value>& months) {
    int number = 1;
    for (const auto& month : months) {
      auto dive = someDive(number++);
      dive["Monat"] = month;
      add(dive);
    }
    startAt(&MDIForm1::Menü4c);
    return app->Form11();
  }
  static std::string share(Form11& form, int month) {
    const auto& [label, value] = form.MSChart1.entries()[static_cast<std::size_t>(month - 1)];
    return label + " " + generalText(value, commaLocale());
  }
};

TEST_F(GraphMonth, SharesOfAllDivesAreNotRounded) {
  desktop->places = commaLocale();
  auto& form = open({"03", "03", "12", "13", Value::null(), "3"});
  EXPECT_EQ(share(form, 1), "Jan 0");
  EXPECT_EQ(share(form, 3), "Mar 33,3333333333333");
  EXPECT_EQ(share(form, 12), "Dec 16,6666666666667");
  EXPECT_EQ(form.MSChart1.chartType(), Chart::Line);
  EXPECT_EQ(form.caption(), "Graph month");
  expectAtRest();
  press(form, Key::Enter);
  EXPECT_FALSE(app->loaded(11));
  EXPECT_EQ(desktop->charts, 0);
}

TEST_F(GraphMonth, CopiedAndLeft) {
  auto& form = open({"05"});
  click(form.Command1);
  EXPECT_EQ(desktop->charts, 1);
  EXPECT_EQ(desktop->texts(),
            std::vector<std::string>{"The graph and the data was copied to clipboard."});
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(11));
}

}  // namespace
}  // namespace nautrel
