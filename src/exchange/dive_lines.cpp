// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dive_lines.h"

#include <cmath>

#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

void append(std::string& list, const std::string& text) {
  if (!list.empty() && !text.empty()) list += ", ";
  list += text;
}

std::string gasOf(const ToldTank& tank) {
  constexpr double kAir = 21;
  constexpr double kAlmost = 0.5;
  if (tank.helium >= kAlmost)
    return "trimix " + fixedText(tank.oxygen, 0) + "/" + fixedText(tank.helium, 0);
  if (tank.oxygen <= 0 || std::abs(tank.oxygen - kAir) < kAlmost) return {};
  return "EAN" + fixedText(tank.oxygen, 0);
}

std::string sizeOf(const ToldTank& tank) {
  return tank.cubicMetres > 0 ? fixedText(tank.cubicMetres / kCubicMetresOfLitre, 1) + " l" : "";
}

std::string pressuresOf(const ToldTank& tank) {
  if (tank.begin <= 0 && tank.end <= 0) return {};
  return fixedText(tank.begin / kPascalsOfBar, 0) + "-" + fixedText(tank.end / kPascalsOfBar, 0) +
         " bar";
}

}  // namespace

void tellTank(DiveFiller& filler, int number, const ToldTank& tank, bool isMain) {
  std::string text;
  if (!isMain) append(text = sizeOf(tank), pressuresOf(tank));
  append(text, gasOf(tank));
  if (!text.empty()) filler.line("Tank " + std::to_string(number) + ": " + text);
}

void tellTemperature(DiveFiller& filler, const std::string& label, double celsius) {
  filler.line(label + ": " + fixedText(celsius, 1) + " °C (" + fixedText(celsius * 1.8 + 32, 0) +
              " °F)");
}

}  // namespace nautrel::exchange
