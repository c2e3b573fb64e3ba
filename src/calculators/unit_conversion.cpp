// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/unit_conversion.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "calculators/unit_table.h"
#include "platform/errors.h"

namespace nautrel {
namespace {

constexpr std::array kLength{1, 2, 3, 4, 6, 7, 8, 9, 10};
constexpr std::array kVolumes{11, 12, 13, 14, 36, 37};
constexpr std::array kWeight{15, 16, 17, 18, 19, 38, 39};
constexpr std::array kPressure{20, 21, 22, 23, 24, 25, 35};
constexpr std::array kTemperature{26, 27, 28};
constexpr std::array kWind{29, 30, 31, 32, 33, 34};

constexpr std::array<std::span<const int>, 6> kPages{kLength,   kVolumes,     kWeight,
                                                     kPressure, kTemperature, kWind};

const unit_table::Row& rowOf(int source) {
  const auto* row = std::find_if(
      unit_table::kRows.begin(), unit_table::kRows.end(),
      [source](const unit_table::Row& candidate) { return candidate.source.number == source; });
  if (row == unit_table::kRows.end()) raise(InvalidCall);
  return *row;
}

double applied(const unit_table::Step& step, double number) {
  using unit_table::Step;
  switch (step.kind) {
    case Step::Plus:
      return number + step.operand;
    case Step::Minus:
      return number - step.operand;
    case Step::Times:
      return number * step.operand;
    default:
      return number / step.operand;
  }
}

// A link that cannot be computed leaves its target as it is.
void follow(const unit_table::Link& link, BoxTexts& texts, const Locale& locale) {
  const auto& formula = link.formula;
  auto& target = texts[link.target];
  if (formula.count == 0) {
    target = texts[formula.box];
    return;
  }
  auto number = tryNumber(texts[formula.box], locale);
  if (!number) return;
  if (formula.emptyBelow && *number < *formula.emptyBelow) {
    target.clear();
    return;
  }
  for (std::size_t step = 0; step < formula.count; ++step)
    number = applied(formula.steps[step], *number);
  if (std::isfinite(*number)) target = generalText(*number, locale);
}

}  // namespace

std::span<const int> boxesOf(UnitPage page) {
  return kPages[static_cast<std::size_t>(page)];
}

UnitPage pageOf(int box) {
  for (std::size_t page = 0; page < kPages.size(); ++page)
    if (std::ranges::find(kPages[page], box) != kPages[page].end())
      return static_cast<UnitPage>(page);
  raise(InvalidCall);
}

BoxTexts convertUnits(int source, BoxTexts texts, const Locale& locale) {
  const auto boxes = boxesOf(pageOf(source));
  for (const auto& link : rowOf(source).links)
    if (link.target != 0) follow(link, texts, locale);

  for (const int box : boxes) {
    if (box == source) continue;
    auto& text = texts[box];
    if (const auto number = tryNumber(text, locale))
      text = formatNumber(*number, "###0.000000000", locale);
  }

  if (texts[source].empty())
    for (const int box : boxes) texts[box].clear();
  return texts;
}

}  // namespace nautrel
