// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/Form21.h"

#include <filesystem>

#include "calculators/Form22.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

class UnitCalculations : public LogbookTest {
 protected:
  Form21& open() {
    if (!app->loaded(0)) start();
    click(app->MDIForm1().Menü7a);
    return app->Form21();
  }
};

constexpr UnitPage kPages[] = {UnitPage::Length,   UnitPage::Volumes,     UnitPage::Weight,
                               UnitPage::Pressure, UnitPage::Temperature, UnitPage::Wind};

/// The texts of a page in the order of clearing, "-" for an empty box.
std::string texts(const Form21& form, UnitPage page) {
  std::string joined;
  for (const int number : boxesOf(page)) {
    const auto& text = form.box(number).text();
    joined += (text.empty() ? "-" : text) + " ";
  }
  joined.pop_back();
  return joined;
}

bool isEmpty(const Form21& form, UnitPage page) {
  return texts(form, page).find_first_not_of("- ") == std::string::npos;
}

TEST_F(UnitCalculations, FillThePageWithEveryKeystroke) {
  auto& form = open();
  choose(form.SSTab1, 3);
  type(form.Text23, "1");
  EXPECT_EQ(texts(form, UnitPage::Pressure),
            "1.013000000 101300.000000000 1013.000000000 1 0.426400000 101.300000000 14.700000000");
  typeOn(form, "0");
  EXPECT_EQ(form.Text23.text(), "10");
  EXPECT_EQ(form.Text20.text(), "10.130000000");
  typeOn(form, "x");
  EXPECT_EQ(form.Text23.text(), "10x");
  EXPECT_EQ(form.Text20.text(), "10.130000000");
  clear(form.Text23);
  EXPECT_TRUE(isEmpty(form, UnitPage::Pressure));
  EXPECT_EQ(desktop->texts(), std::vector<std::string>{});
}

TEST_F(UnitCalculations, TakeEveryBoxAsASourceAndReadItAsTheLocaleDoes) {
  desktop->places = commaLocale();
  auto& form = open();
  for (const auto page : kPages) {
    choose(form.SSTab1, static_cast<int>(page));
    for (const int source : boxesOf(page)) {
      clear(form.box(source));
      EXPECT_TRUE(isEmpty(form, page)) << source;
      typeOn(form, "2,5");
      EXPECT_EQ(form.Text5.text(), std::to_string(source));
      const auto expected = convertUnits(source, {{source, "2,5"}}, commaLocale());
      for (const auto& [number, text] : expected)
        EXPECT_EQ(form.box(number).text(), text) << source << " to " << number;
    }
  }
}

// "New" of a page that is left alone by the active number clears it as well.
TEST_F(UnitCalculations, StartAnewOnEveryPage) {
  auto& form = open();
  const struct {
    UnitPage page;
    Button& button;
    TextBox& typed;
    TextBox& first;
    const char* active;
  } cases[] = {{UnitPage::Length, form.Command1, form.Text9, form.Text1, "1"},
               {UnitPage::Volumes, form.Command2, form.Text36, form.Text11, "11"},
               {UnitPage::Weight, form.Command4, form.Text39, form.Text19, "19"},
               {UnitPage::Pressure, form.Command6, form.Text24, form.Text20, "20"},
               {UnitPage::Temperature, form.Command8, form.Text28, form.Text26, "26"},
               {UnitPage::Wind, form.Command10, form.Text34, form.Text29, "29"}};
  for (const auto& c : cases) {
    choose(form.SSTab1, static_cast<int>(c.page));
    type(c.typed, "3");
    form.Text5.setText("1");
    click(c.button);
    EXPECT_TRUE(isEmpty(form, c.page)) << c.active;
    EXPECT_TRUE(c.first.hasFocus()) << c.active;
    EXPECT_EQ(form.Text5.text(), c.active);
  }
}

TEST_F(UnitCalculations, KeepAPageThatIsLeft) {
  auto& form = open();
  type(form.Text1, "1");
  choose(form.SSTab1, 5);
  EXPECT_EQ(form.Text5.text(), "1");
  type(form.Text29, "10");
  const auto lengths = texts(form, UnitPage::Length);
  choose(form.SSTab1, 0);
  EXPECT_EQ(texts(form, UnitPage::Length), lengths);
  focus(form.Text2);
  focus(form.Text3);
  EXPECT_EQ(texts(form, UnitPage::Length), lengths);
}

TEST_F(UnitCalculations, WalkTheLengthsBackwards) {
  auto& form = open();
  EXPECT_TRUE(form.Command1.hasFocus());
  for (auto* box : {&form.Text10, &form.Text9, &form.Text8, &form.Text7, &form.Text6, &form.Text4,
                    &form.Text3, &form.Text2, &form.Text1}) {
    press(form, Key::Tab);
    EXPECT_TRUE(box->hasFocus()) << box->name();
  }
}

TEST_F(UnitCalculations, CloseByEscOrTheirButtonsAndForgetEverything) {
  const struct {
    UnitPage page;
    Button Form21::*button;
  } cases[] = {{UnitPage::Length, nullptr},
               {UnitPage::Volumes, &Form21::Command3},
               {UnitPage::Weight, nullptr},
               {UnitPage::Pressure, nullptr},
               {UnitPage::Temperature, &Form21::Command9},
               {UnitPage::Wind, &Form21::Command11}};
  for (const auto& [page, button] : cases)
    for (const bool byKey : {true, false}) {
      if (!byKey && button == nullptr) continue;
      auto& form = open();
      for (const auto each : kPages) EXPECT_TRUE(isEmpty(form, each));
      EXPECT_EQ(form.Text5.text(), "1");
      choose(form.SSTab1, static_cast<int>(page));
      type(form.box(boxesOf(page).front()), "5");
      byKey ? press(form, Key::Escape) : click(form.*button);
      EXPECT_FALSE(app->loaded(21));
    }
}

TEST_F(UnitCalculations, StandBesideADiveAndTheOtherCalculator) {
  addDives(1, 2);
  start();
  click(app->MDIForm1().Menü3a);
  open();
  click(app->MDIForm1().Menü7c);
  EXPECT_TRUE(app->loaded(3));
  EXPECT_EQ(app->MDIForm1().MousePointer(), 0);
  click(app->MDIForm1().Menü2a);
  EXPECT_TRUE(app->loaded(21) && app->loaded(22));
}

TEST_F(UnitCalculations, NeedNeitherLogbookNorSettingsAndNoMoreDoesTheOtherCalculator) {
  start();
  const auto settings = desktop->settings;
  std::filesystem::remove(folder.file("Logbuch.mdb"));
  auto& form = open();
  type(form.Text3, "18");
  EXPECT_EQ(form.Text4.text(), "59.040000000");
  close(form);
  click(app->MDIForm1().Menü7c);
  click(app->Form22().Command3);
  close(app->Form22());
  EXPECT_FALSE(std::filesystem::exists(folder.file("Logbuch.mdb")));
  EXPECT_EQ(desktop->settings, settings);
}

}  // namespace
}  // namespace nautrel
