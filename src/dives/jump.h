// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>

#include "platform/text.h"

namespace nautrel {

class Shell;

/// Reads the logbook's first and last number afresh and asks for a dive between them. Cancelled, it
/// gives the empty text.
std::string askForDive(Shell& app);

/// Whether the answer is the last dive's number, to the letter.
bool isLastDive(Shell& app, const std::string& answer);

/// The answer as a number; nothing if it is out of the logbook's range. Raises 13 for an answer
/// that is no number.
std::optional<double> diveInRange(Shell& app, const std::string& answer);

/// Moves a record window by the difference to the number on which it stands. Raises what the move
/// raises, and 94 or 13 on a row without a number.
template <class RecordForm>
void moveToDive(RecordForm& form, double number) {
  form.Data1.Recordset().Move(toInt32(number - form.currentNumber()));
}

}  // namespace nautrel
