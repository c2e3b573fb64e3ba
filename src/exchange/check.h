// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "platform/text.h"
#include "store/database.h"

namespace nautrel::exchange {

/// Something that is wrong with a logbook.
struct Finding {
  enum class About { File, Table, Number, Date, Value, Flags, Picture };
  About about = About::File;
  /// The dive's place in the logbook, from 1; 0 for what is not about one dive.
  int row = 0;
  /// One sentence for a person, which names the dive.
  std::string text;
};

/// "file", "table", "number", "date", "value", "flags" or "picture".
std::string_view nameOf(Finding::About about);

/// What makes a file no logbook that the program can work with: it cannot be opened, the engine
/// finds it damaged, a table, a column or a row that must be there is not. Never raises for that.
std::vector<Finding> checkFile(const std::string& path);

/// All of checkFile() and, where the tables are there, of every dive: a number that does not follow
/// the one before, a date that is none, a number that is none or missing, options of a group of
/// which more than one is set, a picture that is gone. Changes nothing and asks for no lock.
std::vector<Finding> checkLogbook(const std::string& path, const Locale& locale);

}  // namespace nautrel::exchange
