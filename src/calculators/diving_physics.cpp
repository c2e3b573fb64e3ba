// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/diving_physics.h"

#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <utility>

namespace nautrel {
namespace {

constexpr double kMetresPerBar = 10;
constexpr double kFeetPerMetre = 3.28;
constexpr double kPsiPerBar = 14.223;
constexpr double kSaltWater = 1.027;    // tonnes per cubic metre
constexpr double kSweetWater = 0.9987;  // tonnes per cubic metre
constexpr double kKilonewtonPerDensity = 9.81;
constexpr double kKilonewtonPerKilogram = 0.00981;
constexpr double kTonnesPerKilogram = 0.001;
constexpr double kPoundsPerKilogram = 2.205;
constexpr double kCubicMetresPerCubicFoot = 0.028317;
constexpr double kHoverBand = 0.09;  // pounds to either side

// A failing operand is no number, and neither is what is computed from it: a step fails if its
// outcome is not finite, be it a text that does not read, a division by 0 or an overflow.
double operand(std::string_view text, const Locale& locale) {
  return tryNumber(text, locale).value_or(std::numeric_limits<double>::quiet_NaN());
}

// The value that a step leaves behind: nothing, which counts as 0, if it failed.
double step(double outcome) {
  return std::isfinite(outcome) ? outcome : 0;
}

// A test whose operands fail counts as true.
template <class Comparison>
bool holdsOrFails(double left, Comparison comparison, double right) {
  return std::isnan(left) || std::isnan(right) || comparison(left, right);
}

double pressureAt(double depth) {
  return step((depth / (kMetresPerBar * kFeetPerMetre) + 1) * kPsiPerBar);
}

double densityOf(Water water) {
  return water == Water::Salt ? kSaltWater : kSweetWater;
}

double upthrust(Water water, std::string_view volume, const Locale& locale) {
  return step((densityOf(water) * kKilonewtonPerDensity) *
              (operand(volume, locale) * kCubicMetresPerCubicFoot));
}

// Writes a figure rounded by its pattern, and then what follows from the rounded text. Each of the
// two writes stands for itself.
template <class Conversion>
std::string roundedThenConverted(std::string text, double figure, std::string_view pattern,
                                 Conversion conversion, const Locale& locale) {
  if (std::isfinite(figure)) text = formatNumber(figure, pattern, locale);
  const double converted = conversion(operand(text, locale));
  return std::isfinite(converted) ? generalText(converted, locale) : text;
}

void goDown(AirScene& scene, const AirTexts& air, const AirResults& results, const Locale& locale) {
  scene.upperAir = AirScene::kFullBucket;
  const double squeezed = operand(results.volume, locale) / operand(air.volume, locale) *
                          static_cast<double>(AirScene::kFullBucket);
  if (std::abs(squeezed) <= static_cast<double>(std::numeric_limits<float>::max()))
    scene.lowerAir = static_cast<float>(squeezed);
  scene.airEscapes = false;
  scene.upperDepth = air.depth1 + " ft";
  scene.lowerDepth = air.depth2 + " ft";
  scene.arrowDown = true;
  scene.arrowUp = false;
}

void comeUp(AirScene& scene, const AirTexts& air, const AirResults& results, const Locale& locale) {
  scene.upperAir = AirScene::kFullBucket;
  scene.lowerAir = AirScene::kFullBucket;
  const double escaped = (1 - operand(air.volume, locale) / operand(results.volume, locale)) * 100;
  if (std::isfinite(escaped))
    scene.escapeNote = formatNumber(escaped, "#", locale) + "% air escapes";
  scene.airEscapes = true;
  scene.upperDepth = air.depth2 + " ft";
  scene.lowerDepth = air.depth1 + " ft";
  scene.arrowUp = true;
  scene.arrowDown = false;
}

}  // namespace

AirResults airAtDepths(const AirTexts& air, const Locale& locale) {
  const double pressure1 = pressureAt(operand(air.depth1, locale));
  const double pressure2 = pressureAt(operand(air.depth2, locale));
  const double product = step(pressure1 * operand(air.volume, locale));
  const double volume = step(product * (1 / pressure2));
  const double ratio = step(operand(air.density, locale) * (1 / pressure1));
  const double density = step(ratio * pressure2);
  return {formatNumber(pressure1, "###0.0", locale) + " psi",
          formatNumber(pressure2, "###0.0", locale) + " psi",
          formatNumber(volume, "###0.00", locale), formatNumber(density, "###0.00", locale)};
}

AirScene airScene(AirScene before, const AirTexts& air, const AirResults& results,
                  const Locale& locale) {
  const double depth1 = operand(air.depth1, locale);
  const double depth2 = operand(air.depth2, locale);
  auto scene = std::move(before);
  // Three tests one after the other: a depth that does not read passes all of them.
  if (holdsOrFails(depth1, std::less_equal<>(), depth2)) goDown(scene, air, results, locale);
  if (holdsOrFails(depth2, std::less<>(), depth1)) comeUp(scene, air, results, locale);
  if (holdsOrFails(depth2, std::equal_to<>(), depth1)) scene.arrowUp = scene.arrowDown = true;
  return scene;
}

Buoyancy buoyancy(Water water, std::string_view volume, std::string_view weight,
                  const Locale& locale) {
  const double pull = step((operand(weight, locale) / kPoundsPerKilogram) * kKilonewtonPerKilogram);
  const double net = step(pull - upthrust(water, volume, locale));
  const auto mass =
      formatNumber(step((net * kPoundsPerKilogram) / kKilonewtonPerKilogram), "###0.0", locale);
  const double shown = operand(mass, locale);
  const auto sentence = [&mass](const char* start) { return start + mass + " lb)"; };
  if (holdsOrFails(shown, std::less<>(), -kHoverBand))
    return {Tendency::Rises, sentence("The solid rises up (m = ")};
  if (shown > kHoverBand) return {Tendency::Sinks, sentence("The solid sinks down (m = ")};
  return {Tendency::Hovers, sentence("The solid hover (m = ")};
}

std::string weightToHover(Water water, std::string_view volume, std::string weightBefore,
                          const Locale& locale) {
  const double kilograms = upthrust(water, volume, locale) / kKilonewtonPerKilogram;
  const auto toPounds = [](double mass) { return mass * kPoundsPerKilogram; };
  return roundedThenConverted(std::move(weightBefore), kilograms, "###0.00", toPounds, locale);
}

std::string volumeToHover(Water water, std::string_view weight, std::string volumeBefore,
                          const Locale& locale) {
  const double tonnes = step((operand(weight, locale) / kPoundsPerKilogram) * kTonnesPerKilogram);
  const auto toCubicFeet = [](double metres) { return metres / kCubicMetresPerCubicFoot; };
  return roundedThenConverted(std::move(volumeBefore), tonnes / densityOf(water), "###0.0000",
                              toCubicFeet, locale);
}

}  // namespace nautrel
