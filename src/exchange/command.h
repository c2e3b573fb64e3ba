// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "exchange/dated_name.h"
#include "platform/text.h"

namespace nautrel::exchange {

/// Where a command works, and when.
struct CommandPlace {
  std::string folder;  // of the executable, with the logbook and the program's own files
  Locale locale;
  LocalTime now;
};

enum CommandStatus { kDone = 0, kRefused = 1, kWrongUse = 2 };

/// Runs a command line, given without the program's name: import, export, check, backup or restore.
/// What was done goes to `out` as text, or as one JSON object by --json; why it was not goes to
/// `err`, or by --json to `out` too. Returns a CommandStatus; a check that finds something counts
/// as refused. Never raises.
int runCommand(const std::vector<std::string>& arguments, const CommandPlace& place,
               std::ostream& out, std::ostream& err);

}  // namespace nautrel::exchange
