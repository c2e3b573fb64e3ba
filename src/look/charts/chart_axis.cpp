// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_axis.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace nautrel {
namespace {

// A quotient that is whole but for the last bits of its value must not cost a step more.
int stepsTo(double greatest, double step) {
  return std::max(1, static_cast<int>(std::ceil(greatest / step - 1e-9)));
}

}  // namespace

double ChartAxis::share(double value) const {
  return std::clamp(value / top(), 0.0, 1.0);
}

QString ChartAxis::label(int tick) const {
  constexpr double kLongestPlain = 1e9;
  const QLocale locale;
  return top() < kLongestPlain ? locale.toString(step * tick, 'f', decimals)
                               : locale.toString(step * tick, 'g', 6);
}

ChartAxis niceAxis(double greatest, bool counts, int mostSteps) {
  if (!std::isfinite(greatest) || greatest <= 0) return {};
  mostSteps = std::max(1, mostSteps);
  int exponent = static_cast<int>(std::floor(std::log10(greatest / mostSteps)));
  if (counts) exponent = std::max(0, exponent);
  for (;; ++exponent)
    for (const double digit : {1.0, 2.0, 5.0}) {
      const double step = digit * std::pow(10.0, exponent);
      if (greatest / step <= mostSteps + 1e-9)
        return {step, stepsTo(greatest, step), std::max(0, -exponent)};
    }
}

}  // namespace nautrel
