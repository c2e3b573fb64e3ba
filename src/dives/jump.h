#pragma once

#include <string>

namespace nautrel {

class Nautrel;
class Recordset;

/// Reads the logbook's first and last number afresh and asks for a dive between them. Cancelled, it
/// gives the empty text.
std::string askForDive(Nautrel& app);

/// Whether the answer is the last dive's number, to the letter.
bool isLastDive(Nautrel& app, const std::string& answer);

/// Moves from the current row by the difference of numbers; an answer out of range moves nothing.
/// Raises 13 for an answer that is no number, and what the move raises.
void jumpToDive(Nautrel& app, Recordset& dives, const std::string& answer);

}  // namespace nautrel
