// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <map>
#include <span>
#include <string>

#include "platform/text.h"

namespace nautrel {

/// The pages of the unit calculator, in their order.
enum class UnitPage { Length, Volumes, Weight, Pressure, Temperature, Wind };

/// The numbers of a page's boxes (1 for `Text1`), in the order in which they are cleared.
std::span<const int> boxesOf(UnitPage page);

/// The page on which a box stands. Raises 5 for a number that is no unit box.
UnitPage pageOf(int box);

/// Texts of boxes by the number of the box.
using BoxTexts = std::map<int, std::string>;

/// The texts of a page after the text of its box `source` has changed: every other box converted
/// and shown with nine decimals, or all of them empty if the source is. What cannot be computed
/// keeps its text; no text is an error. Boxes left out of `texts` count as empty. Raises 5 if
/// `source` is no unit box.
BoxTexts convertUnits(int source, BoxTexts texts, const Locale& locale);

}  // namespace nautrel
