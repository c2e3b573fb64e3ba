// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <string>

#include "exchange/csv_table.h"
#include "exchange/import_source.h"

namespace nautrel::exchange {

/// Another program's list of dives. Raises Refused where the columns of date, dive time and depth
/// cannot be told, and for a profile.
std::unique_ptr<ImportSource> readForeignCsv(std::unique_ptr<CsvTable> table,
                                             const std::string& fileName);

}  // namespace nautrel::exchange
