// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exchange/standard_row.h"
#include "exchange/xml_writer.h"

namespace nautrel::exchange {

/// Write what UDDF has of the diver's card, in the order that it wants: who the owner is, then
/// (after the equipment) what the owner learned and the notes.
/// @{
void writeOwnerBeforeEquipment(XmlWriter& xml, const StandardRow& card);
void writeOwnerAfterEquipment(XmlWriter& xml, const StandardRow& card);
/// @}

/// Writes a piece of equipment; the number makes its ids.
void writePiece(XmlWriter& xml, const StandardRow& piece, int number);

}  // namespace nautrel::exchange
