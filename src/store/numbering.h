// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>

#include "store/database.h"

namespace nautrel {

/// Told before the first row (step 0) and after each renumbered one.
using NumberingProgress = std::function<void(int step, int count)>;

/// Gives the dives of the logbook consecutive numbers from `start` on, in stored order, each row as
/// a change of its own. Raises 3021 on an empty logbook and whatever the recordset raises; the rows
/// before the failure keep their new numbers.
void renumber(Workspace& workspace, const std::string& path, double start,
              const NumberingProgress& progress = nullptr);

}  // namespace nautrel
