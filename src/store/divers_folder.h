// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace nautrel {

/// A folder of a program without a launcher, as it comes on Windows: the texts that divers may edit
/// lie in ".delivered/new", and the program lays them out itself. In any other folder both calls do
/// nothing. A copy of each text as it was last laid out is kept in ".delivered".
/// @{

/// Makes the logbook where none stands, a link included. Never raises; answers with why there is
/// none, which is nothing where there is one.
std::string makeMissingLogbook(const std::string& folder);

/// Lays out a text that is missing, and renews one that was not edited. Only while the logbook is
/// locked, so that no other program does so too. What cannot be written stays as it is.
void renewTexts(const std::string& folder);
/// @}

}  // namespace nautrel
