// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "exchange/import_plan.h"

namespace nautrel::exchange {

/// A question of a file as a person is asked it, with an example from the file, and what the two
/// answers make of that.
struct QuestionWords {
  std::string question;
  std::string first;
  std::string second;
};
QuestionWords wordsOf(const Question& question);

/// A dive's row in the preview: an empty cell for the tick, line, date, place, depth, time, and
/// what becomes of it.
std::vector<std::string> cellsOf(const PlannedDive& dive, const Locale& locale);

/// How many dives become what, before and after it is done.
/// @{
std::string plannedText(const ImportPlan& plan);
std::string takenText(const ImportPlan& plan);
/// @}

}  // namespace nautrel::exchange
