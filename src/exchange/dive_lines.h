// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "exchange/dive_filler.h"

namespace nautrel::exchange {

// What the logbook has no columns for: lines for the comments.

/// A tank as a file tells it; 0 for what it does not.
struct ToldTank {
  double cubicMetres = 0;
  double begin = 0;  // Pa
  double end = 0;
  double oxygen = 0;  // percent
  double helium = 0;
};

/// "Tank 2: 7 l, 150-100 bar, EAN32"; nothing where that would be but air. Of the main tank, whose
/// size and pressures have columns, the gas alone.
void tellTank(DiveFiller& filler, int number, const ToldTank& tank, bool isMain);

/// "Air temperature: 25 °C (77 °F)".
void tellTemperature(DiveFiller& filler, const std::string& label, double celsius);

}  // namespace nautrel::exchange
