// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/text.h"
#include "store/database.h"

namespace nautrel {

/// What goes into the list file.
struct DiveList {
  std::string databasePath;
  std::string firstNumber;  // `Nr` of the first dive, as stored
  int count = 0;
  DateTime printed;
};

/// Writes the list of dives as a text file of fixed columns, replacing what is there. From the
/// first dive on it takes `count` rows by their position; it is shorter if the logbook ends
/// before. Raises nothing: what cannot be read or written is left out.
void writeDiveList(const std::string& path, const DiveList& list, Workspace& workspace,
                   const Locale& locale);

}  // namespace nautrel
