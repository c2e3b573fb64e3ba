// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/text.h"
#include "platform/value.h"

namespace nautrel {

/// The rule of a box that holds a whole number, for its Change event: a text that is no number or
/// below `least` empties the box; any other becomes its value as a 16-bit whole number, halves to
/// the even neighbour ("007" to "7"). What does not fit stays as it is.
void keepWholeNumber(TextBox& box, double least, const Locale& locale);

/// Where a spin button takes its box: an empty box first gets `empty`, then the box steps by 1
/// unless it has reached the bound of that direction. Compared as numbers; a box or bound that is
/// no number stops the step.
struct SpinRange {
  Value empty;
  Value least;
  Value most;
};
void spinUp(TextBox& box, const SpinRange& range, const Locale& locale);
void spinDown(TextBox& box, const SpinRange& range, const Locale& locale);

/// The three messages of a range of dive numbers; the windows differ in them to the letter.
struct RangeMessages {
  std::string first;
  std::string last;
  std::string order;
};

/// Tests a range of dive numbers against the logbook's. Every test is made whatever the one before
/// gave, and each failure shows its message. The lower bound is compared as text, the upper one as
/// a number, so that with a logbook from 5 on a 10 is refused. A box that is no number fails.
/// Returns the verdict: empty for a good range, else "falsch erster", "falsch letzter" or "falsch".
std::string checkRange(Desktop& desktop, const TextBox& first, const TextBox& last,
                       const Value& ersteNummer, const Value& letzteNummer,
                       const RangeMessages& messages);

}  // namespace nautrel
