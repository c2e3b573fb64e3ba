// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace nautrel {

/// A value axis from 0 in steps of 1, 2 or 5 times a power of ten.
struct ChartAxis {
  double step = 1;
  int steps = 1;
  /// Digits behind the decimal separator that the step needs.
  int decimals = 0;

  double top() const { return step * steps; }
  /// The share of the axis, 0 to 1, that the value takes.
  double share(double value) const;
  QString label(int tick) const;
};

/// The finest axis that reaches `greatest` in at most `mostSteps` steps. An axis of counts has no
/// fractions.
ChartAxis niceAxis(double greatest, bool counts, int mostSteps);

}  // namespace nautrel
