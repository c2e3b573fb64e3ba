// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <random>
#include <string>

#include "exchange/logbook.h"

namespace nautrel::exchange {

/// Logbooks by chance: texts of everything that a column can hold, real values among them.
class RandomLogbooks {
 public:
  explicit RandomLogbooks(unsigned seed) : chance_(seed) {}

  Logbook next();
  DiveRecord dive();
  std::string text();
  int below(int limit) { return static_cast<int>(chance_() % static_cast<unsigned>(limit)); }

 private:
  Cell cell();
  Cell value(int column);
  TextRow row(std::string_view table);
  std::string number();

  std::mt19937 chance_;
};

}  // namespace nautrel::exchange
