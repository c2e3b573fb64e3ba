// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/format.h"
#include "platform/text.h"
#include "store/database.h"

namespace nautrel::exchange {

struct ExportOptions {
  Format format = Format::Uddf;
  /// Dive numbers, both included; nothing for the first and the last dive. A dive whose `Nr` is no
  /// number goes out only where neither is given.
  std::optional<int> from = {};
  std::optional<int> to = {};
  bool card = true;
  bool equipment = true;
  /// Whether a file that is there already may be replaced.
  bool overwrite = false;
};

struct ExportReport {
  int dives = 0;
  bool card = false;  // whether it went out
  int equipment = 0;  // pieces
  /// What the standard form could not hold, a sentence each: "Dive 12: 31.02.1999 is no date and
  /// stands as 1999-02-28." What a return to Nautrel needs is in the file all the same.
  std::vector<std::string> notes = {};
};

/// What the format cannot carry to another program, to be said before the export.
std::vector<std::string> cannotCarry(const ExportOptions& options);

/// Writes the logbook to `target`, which is never a file of the program's own, whole or not at all:
/// no broken file stays behind, and one that was there stays as it was. Raises Refused, with "was
/// cancelled" if `progress` says so, and what OpenDatabase and the recordsets raise.
ExportReport exportLogbook(Workspace& workspace, const std::string& logbook,
                           const std::string& target, const ExportOptions& options,
                           const Locale& locale, const Progress& progress = {});

}  // namespace nautrel::exchange
