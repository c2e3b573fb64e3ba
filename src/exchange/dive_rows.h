// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exchange/dive_record.h"
#include "store/database.h"

namespace nautrel::exchange {

/// Read and store the row on which a recordset stands; they raise what it raises.
/// @{
DiveRecord readDive(const Recordset& dives);
void appendDive(Recordset& dives, const DiveRecord& dive);
TextRow readRow(const Recordset& rows);
void writeRow(Recordset& rows, const TextRow& row);
/// @}

}  // namespace nautrel::exchange
