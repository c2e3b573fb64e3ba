// SPDX-License-Identifier: GPL-2.0-or-later
#include <filesystem>
#include <tuple>

#include "evaluation/Form10.h"
#include "evaluation/Form11.h"
#include "evaluation/evaluation_test.h"

namespace nautrel {
namespace {

class Graphs : public EvaluationTest {
 protected:
  /// "1992:0 1993:0 ..." over all rows.
  static std::string rowsOf(const GraphForm& form, const Locale& locale = {}) {
    std::string rows;
    for (const auto& [label, value] : form.MSChart1.entries())
      rows += (rows.empty() ? "" : " ") + label + ":" + generalText(value, locale);
    return rows;
  }
};

TEST_F(Graphs, TheLastTenYearsAndTheGreatestOfAll) {
  for (const auto* year : {"1991", "1992", "1999", "1999", "2001", "2007", "2000"}) {
    auto dive = someDive(1);
    dive["Jahr"] = year;
    add(dive);
  }
  startAt(&MDIForm1::Menü4b);
  EXPECT_EQ(rowsOf(app->Form10()),
            "1992:1 1993:0 1994:0 1995:0 1996:0 1997:0 1998:0 1999:2 2000:1 2001:1");
  EXPECT_EQ(app->Form10().Label1.caption(), "2007");
  expectAtRest();
}

TEST_F(Graphs, SharesOfMonthsAreNotRounded) {
  desktop->places = commaLocale();
  for (const Value& month :
       {Value("03"), Value("03"), Value("12"), Value::null(), Value("3"), Value("13")}) {
    auto dive = someDive(1);
    dive["Monat"] = month;
    add(dive);
  }
  startAt(&MDIForm1::Menü4c);
  EXPECT_EQ(rowsOf(app->Form11(), commaLocale()),
            "Jan:0 Feb:0 Mar:33,3333333333333 Apr:0 May:0 Jun:0 Jul:0 Aug:0 Sep:0 Oct:0 Nov:0 "
            "Dec:16,6666666666667");
  EXPECT_EQ(app->Form11().MSChart1.chartType(), Chart::Line);
  expectAtRest();
}

TEST_F(Graphs, TheKindOfChartAndWhatIsSaidAboutIt) {
  addDives(1, 2);
  startAt(&MDIForm1::Menü4b);
  auto& form = app->Form10();
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
}

TEST_F(Graphs, AreCopiedAndSavedIntoNoFileAndLeftByEitherKey) {
  addDives(1, 2);
  start();
  const auto picture = folder.file("years.wmf");
  for (const auto& [command, name] : {std::pair{&MDIForm1::Menü4b, "Diagramm Jahre"},
                                      std::pair{&MDIForm1::Menü4c, "Diagramm Monate"}})
    for (const auto key : {Key::Enter, Key::Escape}) {
      click(app->MDIForm1().*command);
      auto& form = dynamic_cast<GraphForm&>(*app->activeForm());
      desktop->answerFile(picture).answerFile({});
      app->handle([&] {
        form.DiagrammSpeichern();
        form.DiagrammSpeichern();
      });
      const auto dialog = std::exchange(desktop->dialogs, {}).front();
      EXPECT_EQ(dialog.title, "Diagramm speichern unter");
      EXPECT_EQ(dialog.fileName, name);
      EXPECT_EQ(dialog.flags, 6);
      EXPECT_FALSE(std::filesystem::exists(picture));
      press(form, key);
      EXPECT_EQ(app->activeForm(), nullptr);
      EXPECT_EQ(desktop->charts, 0);

      click(app->MDIForm1().*command);
      click(dynamic_cast<GraphForm&>(*app->activeForm()).Command1);
      EXPECT_EQ(std::exchange(desktop->charts, 0), 1);
      EXPECT_EQ(desktop->messages(),
                std::vector<Shown>{{"The graph and the data was copied to clipboard."}});
      close(*app->activeForm());
    }
}

}  // namespace
}  // namespace nautrel
