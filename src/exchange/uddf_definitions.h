// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exchange/uddf_dive.h"
#include "exchange/xml_tree.h"

namespace nautrel::exchange {

/// Take in what dives link to.
/// @{
void defineSite(UddfDefinitions& known, const XmlElement& site);
void defineMix(UddfDefinitions& known, const XmlElement& mix);
void defineBuddy(UddfDefinitions& known, const XmlElement& buddy);
void defineImage(UddfDefinitions& known, const XmlElement& image);
void defineMaker(UddfDefinitions& known, const XmlElement& maker);
/// The suits and tanks of a diver.
void defineEquipment(UddfDefinitions& known, const XmlElement& owner);
/// @}

/// The owner as a card, and his pieces of equipment. A suit or tank that has nothing but a name is
/// none: the dives tell it already.
/// @{
TextRow cardOf(const XmlElement& owner);
std::vector<TextRow> equipmentOf(const XmlElement& owner, const UddfDefinitions& known);
/// @}

}  // namespace nautrel::exchange
