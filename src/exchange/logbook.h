// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

#include "exchange/dive_record.h"

namespace nautrel::exchange {

/// What goes out: the dives in stored order, and the card and the equipment where they are wanted.
struct Logbook {
  std::vector<DiveRecord> dives;
  TextRow card = {};
  std::vector<TextRow> equipment = {};
};

}  // namespace nautrel::exchange
