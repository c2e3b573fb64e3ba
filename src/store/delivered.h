// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace nautrel {

/// Makes the logbook as it is delivered: no dives, no equipment, one empty row for the diver and
/// one for the statistic. A file that is there already is never touched, nor one that another
/// program makes at the same moment; returns false then. None is made beside a log that has lost
/// its own, which the engine would write into it. Raises 3044 (no folder), 3026 (disk full), 3051
/// (cannot be written; such a log, which is named).
bool createDeliveredLogbook(const std::string& path);

}  // namespace nautrel
