// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "exchange/dated_name.h"

namespace nautrel::exchange {

struct Restored {
  /// Where the logbook that was there stands now, or the log of one that was not; empty if there
  /// was nothing.
  std::string kept;
  /// Whether a log is kept with it: the logbook was damaged, and its log could not be taken in.
  bool logKept = false;
};

/// Puts a copy in the place of the logbook, which is kept beside under a name with the date. The
/// copy is checked first and stays what it is. Killed at any moment, a whole logbook stands in the
/// place, the old one or the copy, and never one beside the log of the other. Takes the lock.
/// Raises Refused and what the store raises; the logbook stays then.
Restored restoreLogbook(const std::string& logbook, const std::string& copy, LocalTime now);

}  // namespace nautrel::exchange
