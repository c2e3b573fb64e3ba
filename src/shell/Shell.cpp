// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/Shell.h"

#include <filesystem>

#include "store/contract.h"

namespace nautrel {

std::string Shell::databasePath() {
  return besideExecutable(kLogbookFile);
}

Database Shell::openDatabase() {
  return workspace_.OpenDatabase(databasePath());
}

Recordset Shell::openLogbook(const Columns& columns) {
  return openDatabase().OpenRecordset(Tabelle::Logbuch, columns);
}

std::string Shell::besideExecutable(std::string_view fileName) {
  return desktop().applicationPath() +
         static_cast<char>(std::filesystem::path::preferred_separator) + std::string(fileName);
}

}  // namespace nautrel
