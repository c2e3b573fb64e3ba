// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "exchange/import_plan.h"

namespace nautrel::exchange {

/// The whole report as text, a line or more for each dive: line or id, new number, what became of
/// it and what was changed. What a program wants to tell otherwise it reads from the plan.
std::string reportText(const ImportPlan& plan);

/// The lines of one dive.
std::string reportText(const PlannedDive& dive);

/// "Max depth: '150.64' became '150.6', ...".
std::string changeText(const Change& change);

}  // namespace nautrel::exchange
