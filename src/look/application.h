// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/text.h"

namespace nautrel {

/// How numbers and dates are written, for every program of the folder alike; needs no display. The
/// C library has another decimal sign for some countries, and none for those not set up.
Locale localeOfPrograms();

/// What every window of the look stands on, its dialogs included: pictures, icon, style. Once,
/// before the first of them.
void prepareLook();

/// Runs the program in its event loop. Returns the process's status: 3 after a run-time failure,
/// whose message has been shown by then.
int runApplication(int argc, char** argv);
/// The same for the companion's window, which leaves the logbook to others until it writes.
int runCompanion(int argc, char** argv);

}  // namespace nautrel
