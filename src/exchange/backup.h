// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/dated_name.h"

namespace nautrel::exchange {

struct Backup {
  std::string file;
  /// Earlier backups that were deleted.
  std::vector<std::string> deleted;
};

/// Copies the logbook into the folder under a name with the date, also while the program is open,
/// and holds the copy against everything that restoreLogbook() asks of one. With `keep`, at least
/// 1, only so many backups stay in the folder, the new one among them; other files never go. Raises
/// Refused, where the logbook is damaged too, and what the store raises; no backup is made and none
/// deleted then.
Backup backUpLogbook(const std::string& logbook, const std::string& folder, std::optional<int> keep,
                     LocalTime now);

}  // namespace nautrel::exchange
