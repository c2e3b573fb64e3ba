// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/Form21.h"

#include <cmath>
#include <filesystem>
#include <sstream>

#include "calculators/Form22.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

class UnitCalculations : public LogbookTest {
 protected:
  void SetUp() override {
    start();
    open();
  }
  Form21& open() {
    click(app->MDIForm1().Menü7a);
    return app->Form21();
  }
  /// Puts the text in the place of what is in the box.
  void enter(int number, const std::string& text) {
    auto& form = app->Form21();
    choose(form.SSTab1, static_cast<int>(pageOf(number)));
    focus(form.box(number));
    form.box(number).userSelect(0, form.box(number).text().size());
    text.empty() ? press(form, Key::Delete) : form.userType(text);
  }
  const std::string& text(int number) { return app->Form21().box(number).text(); }
  /// The texts of the page but the source's, in the page's order; "-" for an empty box.
  std::string others(int source) {
    std::string joined;
    for (const int number : boxesOf(pageOf(source)))
      if (number != source) joined += (text(number).empty() ? "-" : text(number)) + " ";
    joined.pop_back();
    return joined;
  }
  bool isEmpty(UnitPage page) {
    const int first = boxesOf(page).front();
    return (text(first) + others(first)).find_first_not_of("- ") == std::string::npos;
  }
};

constexpr UnitPage kPages[] = {UnitPage::Length,   UnitPage::Volumes,     UnitPage::Weight,
                               UnitPage::Pressure, UnitPage::Temperature, UnitPage::Wind};

const struct {
  int source;
  const char* typed;
  const char* others;
} kConversions[] = {
    // clang-format off
    {1, "1", "0.393000000 0.010000000 0.032800000 0.010930000 0.005460000 0.000010000 0.000006210 0.000005390"},
    {2, "12", "30.534351145 0.305343511 1.001526718 0.333740458 0.166717557 0.000305344 0.000189618 0.000164580"},
    {3, "18.5", "1850.000000000 727.050000000 60.680000000 20.220500000 10.101000000 0.018500000 0.011488500 0.009971500"},
    {4, "130", "3963.414634146 1557.621951220 39.634146341 43.320121951 21.640243902 0.039634146 0.024612805 0.021362805"},
    {6, "3", "274.473924977 107.868252516 2.744739250 9.002744739 1.498627630 0.002744739 0.001704483 0.001479414"},
    {7, "5", "915.750915751 359.890109890 9.157509158 30.036630037 10.009157509 0.009157509 0.005686813 0.004935897"},
    {8, "1.852", "185200.000000000 72783.600000000 1852.000000000 6074.560000000 2024.236000000 1011.192000000 1.150092000 0.998228000"},
    {9, "1", "161030.595813205 63285.024154590 1610.305958132 5281.803542673 1760.064412238 879.227053140 1.610305958 0.867954911"},
    {10, "60", "11131725.417439700 4374768.089053800 111317.254174397 365120.593692022 121669.758812616 60779.220779221 111.317254174 69.128014842"},
    {11, "1000", "0.220000000 0.001000000 1.000000000 61.057516180 0.035314475"},
    {12, "1", "4545.454545455 0.004545455 4.545454545 277.534164456 0.160520343"},
    {13, "2.5", "2500000.000000000 550.000000000 2500.000000000 152643.790450604 88.286188509"},
    {14, "10", "10000.000000000 2.200000000 0.010000000 610.575161802 0.353144754"},
    {36, "1000", "16378.000000000 3.603160000 0.016378000 16.378000000 463.775826000"},
    {37, "1", "28317.000000000 6.229740000 0.028317000 28.317000000 1728.965685676"},
    {15, "80", "176.400000000 0.080000000 2821.969028890 80000.000000000 800.000000000 0.800000000"},
    {16, "1", "0.454000000 0.000454000 16.014674239 454.000000000 4.540000000 0.004540000"},
    {17, "1.2", "1200.000000000 2646.000000000 42329.535433349 1200000.000000000 12000.000000000 12.000000000"},
    {18, "1", "0.028349000 0.062442731 0.000028349 28.349000000 0.283490000 0.000283490"},
    {19, "454", "0.454000000 1.001070000 0.000454000 16.014674239 4.540000000 0.004540000"},
    {38, "4.54", "0.454000000 1.001070000 0.000454000 16.014674239 454.000000000 0.004540000"},
    {39, "0.25", "25.000000000 55.125000000 0.025000000 881.865321528 25000.000000000 250.000000000"},
    {20, "2", "200000.000000000 2000.000000000 1.974333662 32.800000000 200.000000000 28.446000000"},
    {21, "350000", "3.500000000 3500.000000000 3.455083909 82.000000000 350.000000000 49.780500000"},
    {22, "1013.25", "1.013250000 101325.000000000 1.000246792 0.434600000 101.325000000 14.411454750"},
    {23, "1", "1.013000000 101300.000000000 1013.000000000 0.426400000 101.300000000 14.700000000"},
    {24, "33", "2.006097561 200609.756097561 2006.097560976 1.980352972 200.609756098 28.532725610"},
    {25, "99.9", "0.999000000 99900.000000000 999.000000000 0.986179664 - 14.208777000"},
    {35, "14.7", "1.033537228 103353.722843282 1033.537228433 1.000000000 1.100021093 103.353722843"},
    {26, "20", "293.000000000 68.000000000"},
    {27, "293", "20.000000000 68.000000000"},
    {28, "212", "100.000000000 373.000000000"},
    {29, "10", "11.333333333 17.000000000 18.360000000 5.100000000 10.000000000"},
    {30, "7.5", "6.617647059 11.250000000 12.000000000 3.333333333 6.617647059"},
    {31, "17", "10.000000000 11.333333333 18.133333333 5.037037037 10.000000000"},
    {32, "18.36", "10.125000000 11.475000000 17.212500000 5.100000000 10.125000000"},
    {33, "10", "19.852941176 22.500000000 33.750000000 36.000000000 19.852941176"},
    {34, "10", "10.000000000 11.333333333 17.000000000 18.360000000 5.100000000"},
    // clang-format on
};

TEST_F(UnitCalculations, ConvertFromEveryBoxInEitherLocale) {
  std::size_t boxes = 0;
  for (const auto page : kPages) boxes += boxesOf(page).size();
  EXPECT_EQ(boxes, std::size(kConversions));
  for (const bool comma : {false, true}) {
    desktop->places = comma ? commaLocale() : Locale();
    const auto here = [&](const char* text) { return comma ? withComma(text) : text; };
    for (const auto& c : kConversions) {
      enter(c.source, "");
      EXPECT_TRUE(isEmpty(pageOf(c.source)));
      enter(c.source, here(c.typed));
      EXPECT_EQ(others(c.source), here(c.others)) << "source " << c.source;
      EXPECT_EQ(text(c.source), here(c.typed));
    }
  }
}

TEST_F(UnitCalculations, KeepWhatIsTypedAndReadItAsTheLocaleDoes) {
  const struct {
    bool comma;
    const char* typed;
    const char* inches;
  } cases[] = {{false, " 1,000 ", "393.000000000"}, {false, "1,5", "5.895000000"},
               {false, "1E3", "393.000000000"},     {false, "-2.", "-0.786000000"},
               {true, "1,5", "0,589500000"},        {true, "1.5", "5,895000000"},
               {false, "0", "0.000000000"},         {false, "-0", "-0.000000000"},
               {false, "1E-300", "0.000000000"}};
  for (const auto& c : cases) {
    desktop->places = c.comma ? commaLocale() : Locale();
    enter(1, c.typed);
    EXPECT_EQ(text(2), c.inches) << c.typed;
    EXPECT_EQ(text(1), c.typed);
  }
  enter(1, "-0.0000000001");
  const auto shown = others(1);
  enter(1, "x");
  EXPECT_EQ(others(1), shown);
}

TEST_F(UnitCalculations, KeepTheLastValidConversionWhileATextIsBroken) {
  for (const auto& c : kConversions) {
    if (c.source == 29 || c.source == 34) continue;  // they copy the broken text as well
    for (const char* broken : {"abc", "-", "1.2.3", "1E", " "}) {
      enter(c.source, "");
      enter(c.source, c.typed);
      enter(c.source, broken);
      EXPECT_EQ(text(c.source), broken);
      std::istringstream before(c.others);
      std::istringstream after(others(c.source));
      for (std::string old, kept; before >> old && after >> kept;) {
        const double number = tryNumber(old, {}).value_or(0);
        EXPECT_NEAR(tryNumber(kept, {}).value_or(0), number, std::abs(number) * 1e-6)
            << c.source << " " << broken;
      }
    }
  }
}

TEST_F(UnitCalculations, GoOnFromTheOldTextsBehindABrokenLink) {
  enter(9, "1");
  EXPECT_EQ(text(8), "1.610305958");
  EXPECT_EQ(text(3), "1610.305958132");
  typeOn(app->Form21(), "x");
  EXPECT_EQ(text(9), "1x");
  EXPECT_EQ(text(8), "1.610305958");
  // From the nine decimals of the kilometer, no longer from its fifteen digits.
  EXPECT_EQ(text(3), "1610.305958000");
  enter(9, "");
  enter(9, "x");
  EXPECT_TRUE(others(9).find_first_not_of("- ") == std::string::npos);
}

TEST_F(UnitCalculations, KeepATextWhoseNumberGrowsTooLarge) {
  enter(3, "2");
  enter(3, "1E308");
  EXPECT_EQ(text(1), "200.000000000");
  EXPECT_EQ(text(2), "78.600000000");
  EXPECT_EQ(text(8).size(), 306 + 10);
  EXPECT_EQ(text(7).substr(0, 4), "5460");
  enter(3, "1E309");
  EXPECT_EQ(text(1), "200.000000000");
}

TEST_F(UnitCalculations, KnowNoDepthBelowThePressureOfTheAir) {
  enter(20, "0.5");
  EXPECT_EQ(others(20), "50000.000000000 500.000000000 0.493583416 - 50.000000000 7.111500000");
  const std::pair<const char*, const char*> edits[] = {
      {"2", "32.800000000"}, {"2x", "32.800000000"}, {"1", "0.000000000"}, {"-3", ""}, {"abc", ""}};
  for (const auto& [typed, depth] : edits) {
    enter(20, typed);
    EXPECT_EQ(text(24), depth) << typed;
  }
  enter(24, "-16.4");
  EXPECT_EQ(text(20), "0.500000000");
  EXPECT_EQ(text(24), "-16.4");
}

TEST_F(UnitCalculations, CopyKnotsAsTheyStand) {
  enter(29, "10");
  enter(29, "10 knots");
  EXPECT_EQ(others(29), "11.333333333 17.000000000 18.360000000 5.100000000 10 knots");
  enter(34, "fresh");
  EXPECT_EQ(text(29), "fresh");
  EXPECT_EQ(text(31), "17.000000000");
  enter(32, "18.36");
  EXPECT_EQ(text(29), "10.125000000");
  EXPECT_EQ(text(34), "10.125000000");
}

// "New" of a page that is left alone by the active number clears it as well.
TEST_F(UnitCalculations, StartAnewOnEveryPageAndForgetEverythingWhenClosed) {
  const struct {
    UnitPage page;
    int typed, first;
    Button Form21::*anew;
    Button Form21::*close = nullptr;
  } cases[] = {{UnitPage::Length, 9, 1, &Form21::Command1},
               {UnitPage::Volumes, 36, 11, &Form21::Command2, &Form21::Command3},
               {UnitPage::Weight, 39, 19, &Form21::Command4},
               {UnitPage::Pressure, 24, 20, &Form21::Command6},
               {UnitPage::Temperature, 28, 26, &Form21::Command8, &Form21::Command9},
               {UnitPage::Wind, 34, 29, &Form21::Command10, &Form21::Command11}};
  for (const auto& c : cases)
    for (const bool byKey : {true, false}) {
      if (!byKey && c.close == nullptr) continue;
      auto& form = open();
      EXPECT_EQ(form.Text5.text(), "1");
      for (const auto each : kPages) EXPECT_TRUE(isEmpty(each));
      enter(c.typed, "3");
      form.Text5.setText("1");
      click(form.*c.anew);
      EXPECT_TRUE(isEmpty(c.page)) << c.first;
      EXPECT_TRUE(form.box(c.first).hasFocus()) << c.first;
      EXPECT_EQ(form.Text5.text(), std::to_string(c.first));
      typeOn(form, "5");
      byKey ? press(form, Key::Escape) : click(form.*c.close);
      EXPECT_FALSE(app->loaded(21));
    }
}

TEST_F(UnitCalculations, KeepAPageThatIsLeftAndWalkTheLengthsBackwards) {
  auto& form = app->Form21();
  EXPECT_TRUE(form.Command1.hasFocus());
  for (const int number : {10, 9, 8, 7, 6, 4, 3, 2, 1}) {
    press(form, Key::Tab);
    EXPECT_TRUE(form.box(number).hasFocus()) << number;
  }
  enter(1, "1");
  const auto lengths = others(1);
  choose(form.SSTab1, 5);
  EXPECT_EQ(form.Text5.text(), "1");
  enter(29, "10");
  choose(form.SSTab1, 0);
  focus(form.Text2);
  focus(form.Text3);
  EXPECT_EQ(others(1), lengths);
}

TEST_F(UnitCalculations, StandBesideADiveAndNeedNoLogbookAndNoMoreDoesTheOtherCalculator) {
  addDives(1, 2);
  restart();
  click(app->MDIForm1().Menü3a);
  open();
  click(app->MDIForm1().Menü7c);
  EXPECT_TRUE(app->loaded(3));
  EXPECT_EQ(app->MDIForm1().MousePointer(), 0);
  click(app->MDIForm1().Menü2a);
  EXPECT_TRUE(app->loaded(21) && app->loaded(22));
  while (app->activeForm() != nullptr) close(*app->activeForm());

  const auto settings = desktop->settings;
  std::filesystem::remove(folder.file("Logbuch.mdb"));
  open();
  enter(3, "18");
  EXPECT_EQ(text(4), "59.040000000");
  click(app->MDIForm1().Menü7c);
  click(app->Form22().Command3);
  close(app->Form22());
  EXPECT_FALSE(std::filesystem::exists(folder.file("Logbuch.mdb")));
  EXPECT_EQ(desktop->settings, settings);
}

}  // namespace
}  // namespace nautrel
