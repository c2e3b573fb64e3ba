// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "exchange/format.h"
#include "exchange/import_source.h"

namespace nautrel::exchange {

/// A command line as it is meant.
struct Request {
  std::string command;  // "import", "export", "check", "backup", "restore"
  std::string file;     // or the folder of a backup
  std::optional<Format> format;
  bool json = false;
  // import
  bool dryRun = false;
  bool card = false;
  Answers answers;
  std::vector<int> insist;
  // export
  std::optional<int> from;
  std::optional<int> to;
  bool withoutCard = false;
  bool withoutEquipment = false;
  bool force = false;
  // backup
  std::optional<int> keep;
};

/// Reads a command line without the program's name. Where nothing is left to do - the help was
/// asked for, or the use is wrong - the text of that is written and the status returned instead.
std::variant<Request, int> readCommandLine(const std::vector<std::string>& arguments,
                                           std::ostream& out, std::ostream& err);

}  // namespace nautrel::exchange
