// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>

#include "exchange/import_source.h"
#include "exchange/input_file.h"

namespace nautrel::exchange {

/// Reads a CSV file: one of ours, or another program's list of dives. Raises Refused.
std::unique_ptr<ImportSource> readCsv(InputFile& file);

}  // namespace nautrel::exchange
