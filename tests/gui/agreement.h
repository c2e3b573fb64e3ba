// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "look/frame/qt_looks.h"
#include "platform/program.h"

namespace nautrel {

/// What the screen shows otherwise than the models say, a line each. While a box is open the focus
/// is the box's, so it is left out.
std::vector<std::string> disagreements(Program& app, const QtLooks& looks, bool boxIsOpen = false);

}  // namespace nautrel
