// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/unit_conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "platform/errors.h"
#include "support/scripted_desktop.h"

namespace nautrel {
namespace {

const Locale kPoint;
const Locale kComma = commaLocale();

// A page as the diver meets it: what is typed into a box stays, the other boxes follow.
class Page {
 public:
  explicit Page(const Locale& locale = kPoint) : locale_(locale) {}

  void type(int box, const std::string& text) {
    texts_[box] = text;
    texts_ = convertUnits(box, texts_, locale_);
  }
  const std::string& operator[](int box) { return texts_[box]; }

  // The texts of the boxes but one, in the page's order; "-" for an empty box.
  std::string others(int source) {
    std::string joined;
    for (const int box : boxesOf(pageOf(source)))
      if (box != source) joined += (texts_[box].empty() ? "-" : texts_[box]) + " ";
    joined.pop_back();
    return joined;
  }

 private:
  const Locale& locale_;
  BoxTexts texts_;
};

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

TEST(Units, convert_from_every_box_in_either_locale) {
  for (const auto& c : kConversions) {
    for (const bool comma : {false, true}) {
      const auto here = [&](const char* text) { return comma ? withComma(text) : text; };
      Page page(comma ? kComma : kPoint);
      page.type(c.source, here(c.typed));
      EXPECT_EQ(page.others(c.source), here(c.others)) << "source " << c.source;
      EXPECT_EQ(page[c.source], here(c.typed));
    }
  }
}

TEST(Units, have_a_row_for_every_box) {
  std::size_t boxes = 0;
  for (const auto page : {UnitPage::Length, UnitPage::Volumes, UnitPage::Weight, UnitPage::Pressure,
                          UnitPage::Temperature, UnitPage::Wind})
    boxes += boxesOf(page).size();
  EXPECT_EQ(boxes, std::size(kConversions));
  EXPECT_THROW(convertUnits(5, {}, kPoint), RunTimeError);
}

TEST(Units, keep_what_is_typed_and_read_it_as_the_locale_does) {
  const struct {
    const Locale& locale;
    const char* typed;
    const char* inches;
  } cases[] = {{kPoint, " 1,000 ", "393.000000000"}, {kPoint, "1,5", "5.895000000"},
               {kPoint, "1E3", "393.000000000"},     {kPoint, "-2.", "-0.786000000"},
               {kComma, "1,5", "0,589500000"},       {kComma, "1.5", "5,895000000"},
               {kPoint, "0", "0.000000000"},         {kPoint, "-0", "-0.000000000"},
               {kPoint, "1E-300", "0.000000000"}};
  for (const auto& c : cases) {
    Page page(c.locale);
    page.type(1, c.typed);
    EXPECT_EQ(page[2], c.inches) << c.typed;
    EXPECT_EQ(page[1], c.typed);
  }
  Page tiny;
  tiny.type(1, "-0.0000000001");
  const auto shown = tiny.others(1);
  tiny.type(1, "x");
  EXPECT_EQ(tiny.others(1), shown);
}

TEST(Units, keep_the_last_valid_conversion_while_broken_and_are_emptied_with_their_source) {
  for (const auto& c : kConversions) {
    Page page;
    for (const char* broken : {"abc", "-", "1.2.3", "1E", " "}) {
      if (c.source == 29 || c.source == 34) continue;  // they copy the broken text as well
      page.type(c.source, c.typed);
      page.type(c.source, broken);
      EXPECT_EQ(page[c.source], broken);
      std::istringstream before(c.others);
      std::istringstream after(page.others(c.source));
      for (std::string old, kept; before >> old && after >> kept;) {
        const double number = tryNumber(old, kPoint).value_or(0);
        EXPECT_NEAR(tryNumber(kept, kPoint).value_or(0), number, std::abs(number) * 1e-6)
            << c.source << " " << broken;
      }
    }
    page.type(c.source, c.typed);
    page.type(c.source, "");
    for (const int box : boxesOf(pageOf(c.source))) EXPECT_EQ(page[box], "") << box;
  }
}

TEST(Units, go_on_from_the_old_texts_behind_a_broken_link) {
  Page page;
  page.type(9, "1");
  EXPECT_EQ(page[8], "1.610305958");
  EXPECT_EQ(page[3], "1610.305958132");
  page.type(9, "1x");
  EXPECT_EQ(page[8], "1.610305958");
  // From the nine decimals of the kilometer, no longer from its fifteen digits.
  EXPECT_EQ(page[3], "1610.305958000");
  page.type(9, "");
  page.type(9, "x");
  EXPECT_EQ(page.others(9), "- - - - - - - -");
  page.type(9, "1");
  EXPECT_EQ(page[3], "1610.305958132");
}

TEST(Units, keep_a_text_whose_number_grows_too_large) {
  Page page;
  page.type(3, "2");
  page.type(3, "1E308");
  EXPECT_EQ(page[1], "200.000000000");
  EXPECT_EQ(page[2], "78.600000000");
  EXPECT_EQ(page[8].size(), 306 + 10);
  EXPECT_EQ(page[7].substr(0, 4), "5460");
  page.type(3, "1E309");
  EXPECT_EQ(page[1], "200.000000000");
}

TEST(Pressure, has_no_depth_below_the_pressure_of_the_air) {
  Page page;
  page.type(20, "0.5");
  EXPECT_EQ(page.others(20),
            "50000.000000000 500.000000000 0.493583416 - 50.000000000 7.111500000");
  const std::pair<const char*, const char*> edits[] = {
      {"2", "32.800000000"}, {"2x", "32.800000000"}, {"1", "0.000000000"}, {"-3", ""}, {"abc", ""}};
  for (const auto& [typed, depth] : edits) {
    page.type(20, typed);
    EXPECT_EQ(page[24], depth) << typed;
  }
  page.type(24, "-16.4");
  EXPECT_EQ(page[20], "0.500000000");
  EXPECT_EQ(page[24], "-16.4");
}

TEST(Wind, copies_knots_as_they_stand) {
  Page page;
  page.type(29, "10");
  page.type(29, "10 knots");
  EXPECT_EQ(page.others(29), "11.333333333 17.000000000 18.360000000 5.100000000 10 knots");
  page.type(34, "fresh");
  EXPECT_EQ(page[29], "fresh");
  EXPECT_EQ(page[31], "17.000000000");
  page.type(32, "18.36");
  EXPECT_EQ(page[29], "10.125000000");
  EXPECT_EQ(page[34], "10.125000000");
}

}  // namespace
}  // namespace nautrel
