// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/contrast.h"

#include <algorithm>
#include <cmath>

namespace nautrel {
namespace {

double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor readable(const QColor& color, const QColor& against, double least) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  const QColor end = contrast(black, against) > contrast(white, against) ? black : white;
  constexpr int kSteps = 32;
  for (int step = 0; step < kSteps; ++step) {
    const auto mixed = [&](int from, int to) { return from + (to - from) * step / kSteps; };
    const QColor nearer(mixed(color.red(), end.red()), mixed(color.green(), end.green()),
                        mixed(color.blue(), end.blue()));
    if (contrast(nearer, against) >= least) return nearer;
  }
  return end;
}

}  // namespace nautrel
