// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/Form10.h"

#include <filesystem>
#include <tuple>

#include "evaluation/evaluation_test.h"

namespace nautrel {
namespace {

class GraphYears : public EvaluationTest {
 protected:
  Form10& open() {
    startAt(&MDIForm1::Menü4b);
    return app->Form10();
  }
};

/// "1992:0 1993:0 ..." over all rows.
std::string rowsOf(const Chart& chart) {
  std::string rows;
  for (const auto& [label, value] : chart.entries())
    rows += (rows.empty() ? "" : " ") + label + ":" + generalText(value, {});
  return rows;
}

TEST_F(GraphYears, TheLastTenYearsAndTheGreatestOfAll) {
  for (const auto* year : {"1991", "1992", "1999", "1999", "2001", "2007", "2000"}) {
    auto dive = someDive(1);
    dive["Jahr"] = year;
    add(dive);
  }
  auto& form = open();
  EXPECT_EQ(rowsOf(form.MSChart1),
            "1992:1 1993:0 1994:0 1995:0 1996:0 1997:0 1998:0 1999:2 2000:1 2001:1");
  EXPECT_EQ(form.Label1.caption(), "2007");
  EXPECT_EQ(form.caption(), "Graph years");
  expectAtRest();
}

TEST_F(GraphYears, TheKindOfChartAndWhatIsSaidAboutIt) {
  addDives(1, 2);
  auto& form = open();
  const auto expectKind = [&](Chart::Type type, bool turnable) {
    EXPECT_EQ(form.MSChart1.chartType(), type);
    EXPECT_EQ(form.MSChart1.AllowDynamicRotation(), turnable) << type;
    EXPECT_EQ(form.Label1.visible(), !turnable) << type;
    EXPECT_EQ(form.Label2.visible(), !turnable) << type;
    EXPECT_EQ(form.Label3.visible(), turnable) << type;
  };
  EXPECT_TRUE(form.Option1.on());
  expectKind(Chart::Line, false);
  const std::tuple<OptionButton*, Chart::Type, bool> kinds[] = {
      {&form.Option2, Chart::Area3D, true},
      {&form.Option4, Chart::Bars, false},
      {&form.Option3, Chart::Bars3D, true},
      {&form.Option1, Chart::Line, false}};
  for (const auto& [option, kind, turnable] : kinds) {
    click(*option);
    expectKind(kind, turnable);
  }
  press(form, Key::Enter);
  EXPECT_FALSE(app->loaded(10));
}

TEST_F(GraphYears, CopiedAndTold) {
  addDives(1, 2);
  auto& form = open();
  click(form.Command1);
  EXPECT_EQ(desktop->charts, 1);
  EXPECT_EQ(desktop->messages(),
            std::vector<Shown>{{"The graph and the data was copied to clipboard."}});
}

TEST_F(GraphYears, NoFileComesOfSaving) {
  addDives(1, 2);
  auto& form = open();
  const auto picture = folder.file("years.wmf");
  desktop->answerFile(picture).answerFile({});
  app->handle([&] {
    form.DiagrammSpeichern();
    form.DiagrammSpeichern();
  });
  ASSERT_EQ(desktop->dialogs.size(), 2u);
  EXPECT_EQ(desktop->dialogs.front().title, "Diagramm speichern unter");
  EXPECT_EQ(desktop->dialogs.front().fileName, "Diagramm Jahre");
  EXPECT_EQ(desktop->dialogs.front().flags, 6);
  EXPECT_FALSE(std::filesystem::exists(picture));
}

}  // namespace
}  // namespace nautrel
