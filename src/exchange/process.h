// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "platform/text.h"

namespace nautrel::exchange {

// What a program without a toolkit asks its system.

/// The command line in UTF-8, without the program's own name; what the program writes is taken as
/// UTF-8 from now on.
std::vector<std::string> programArguments(int count, char** arguments);

/// The folder of the executable itself, behind all links.
std::string programFolder();

/// How the user's system writes numbers.
Locale systemLocale();

/// Whether a window could be shown.
bool hasDisplay();

/// Starts the window that is a program of its own beside this one; false where it is none.
bool startWindowProgram();

}  // namespace nautrel::exchange
