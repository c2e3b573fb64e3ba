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
  const auto [dark, light] = std::minmax(luminance(one), luminance(other));
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace nautrel
