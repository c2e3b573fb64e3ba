// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/diving_physics.h"

#include <gtest/gtest.h>

#include "support/scripted_desktop.h"

namespace nautrel {
namespace {

const Locale kPoint;
const Locale kComma = commaLocale();

TEST(Air, changes_volume_and_density_with_the_depth) {
  const struct {
    AirTexts air;
    const char *pressure1, *pressure2, *volume, *density;
  } cases[] = {
      {{"0", "33", "1", "1"}, "14.2 psi", "28.5 psi", "0.50", "2.01"},
      {{"33", "0", "1", "1"}, "28.5 psi", "14.2 psi", "2.01", "0.50"},
      {{"66", "0", "12", "1.2"}, "42.8 psi", "14.2 psi", "36.15", "0.40"},
      {{"-33", "0", "1", "1"}, "-0.1 psi", "14.2 psi", "-0.01", "-164.00"},
      // A depth that does not read has no pressure, and nothing divides by it.
      {{"", "33", "1", "1"}, "0.0 psi", "28.5 psi", "0.00", "0.00"},
      {{"0", "deep", "1", "1"}, "14.2 psi", "0.0 psi", "0.00", "0.00"},
      {{"0", "33", "", "1"}, "14.2 psi", "28.5 psi", "0.00", "2.01"},
      {{"0", "33", "1", "a"}, "14.2 psi", "28.5 psi", "0.50", "0.00"},
      {{"9E9", "0", "9E+307", "1"}, "3902652453.2 psi", "14.2 psi", "0.00", "0.00"},
  };
  for (const auto& c : cases) {
    const auto results = airAtDepths(c.air, kPoint);
    EXPECT_EQ(results.pressure1, c.pressure1);
    EXPECT_EQ(results.pressure2, c.pressure2);
    EXPECT_EQ(results.volume, c.volume) << c.air.depth1 << " to " << c.air.depth2;
    EXPECT_EQ(results.density, c.density) << c.air.depth1 << " to " << c.air.depth2;

    const AirTexts typed{c.air.depth1, c.air.depth2, withComma(c.air.volume),
                         withComma(c.air.density)};
    const auto comma = airAtDepths(typed, kComma);
    EXPECT_EQ(comma.pressure2, withComma(c.pressure2));
    EXPECT_EQ(comma.volume, withComma(c.volume));
  }
}

AirScene sceneOf(const AirTexts& air, const AirScene& before = {}, const Locale& locale = kPoint) {
  return airScene(before, air, airAtDepths(air, locale), locale);
}

TEST(AirScene, tells_the_share_that_escapes_from_the_rounded_volume) {
  const struct {
    AirTexts air;
    const char* note;
  } cases[] = {{{"66", "0", "12", "1.2"}, "67% air escapes"},
               {{"1", "0", "0.1", "1"}, "% air escapes"},
               {{"1", "0", "1.004", "1"}, "3% air escapes"},
               {{"9", "8", "1.004", "1"}, "3% air escapes"},
               {{"1", "0", "0.014", "1"}, "-40% air escapes"}};
  for (const auto& c : cases) EXPECT_EQ(sceneOf(c.air).escapeNote, c.note) << c.air.volume;
  EXPECT_EQ(sceneOf({"66", "0", "1,5", "1"}, {}, kComma).escapeNote, "67% air escapes");
  EXPECT_EQ(sceneOf({"1", "1", "0.005", "1"}).lowerAir, 80);
}

TEST(AirScene, keeps_a_height_that_cannot_be_computed) {
  const auto before = sceneOf({"0", "33", "1", "1"});
  for (const char* volume : {"", "0", "much"}) {
    const auto scene = sceneOf({"0", "66", volume, "1"}, before);
    EXPECT_EQ(scene.lowerAir, 20) << volume;
    EXPECT_EQ(scene.lowerDepth, "66 ft");
  }
}

TEST(Buoyancy, tells_whether_a_solid_rises_sinks_or_hovers) {
  const struct {
    Water water;
    const char *volume, *weight;
    Tendency tendency;
    const char* text;
  } cases[] = {
      {Water::Salt, "1", "64", Tendency::Rises, "The solid rises up (m = -0.1 lb)"},
      {Water::Salt, "1", "64.1", Tendency::Hovers, "The solid hover (m = -0.0 lb)"},
      {Water::Sweet, "1", "64", Tendency::Sinks, "The solid sinks down (m = 1.6 lb)"},
      {Water::Sweet, "1", "62.4", Tendency::Hovers, "The solid hover (m = 0.0 lb)"},
      {Water::Salt, "0", "10", Tendency::Sinks, "The solid sinks down (m = 10.0 lb)"},
      {Water::Salt, "", "", Tendency::Hovers, "The solid hover (m = 0.0 lb)"},
      {Water::Salt, "big", "0.1", Tendency::Sinks, "The solid sinks down (m = 0.1 lb)"},
      {Water::Sweet, "1", "heavy", Tendency::Rises, "The solid rises up (m = -62.4 lb)"},
  };
  for (const auto& c : cases) {
    const auto told = buoyancy(c.water, c.volume, c.weight, kPoint);
    EXPECT_EQ(told.tendency, c.tendency) << c.volume << " " << c.weight;
    EXPECT_EQ(told.text, c.text);
  }
  const auto comma = buoyancy(Water::Sweet, "1", "62,4", kComma);
  EXPECT_EQ(comma.text, "The solid hover (m = 0,0 lb)");
  EXPECT_EQ(comma.tendency, Tendency::Hovers);
}

// Of two writes the first may fail, and the second works on the text that was there.
TEST(Hovering, sets_the_one_from_the_other) {
  const struct {
    std::string set;
    const char* expected;
  } cases[] = {
      {weightToHover(Water::Salt, "1,0", "", kComma), "64,1214"},
      {weightToHover(Water::Sweet, "1", "7", kPoint), "62.3574"},
      {weightToHover(Water::Salt, "", "7", kPoint), "0"},
      {weightToHover(Water::Salt, "big", "heavy", kPoint), "0"},
      {weightToHover(Water::Salt, "1E308", "10", kPoint), "22.05"},
      {weightToHover(Water::Salt, "1E308", "heavy", kPoint), "heavy"},
      {volumeToHover(Water::Salt, "64", "", kComma), "0,999399653918141"},
      {volumeToHover(Water::Sweet, "heavy", "3", kPoint), "0"},
  };
  for (const auto& [set, expected] : cases) EXPECT_EQ(set, expected);
}

}  // namespace
}  // namespace nautrel
