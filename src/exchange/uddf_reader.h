// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>

#include "exchange/import_source.h"
#include "exchange/input_file.h"

namespace nautrel::exchange {

/// Reads a UDDF file of any version and maker, in any order of its elements. Raises Refused.
std::unique_ptr<ImportSource> readUddf(InputFile& file);

}  // namespace nautrel::exchange
