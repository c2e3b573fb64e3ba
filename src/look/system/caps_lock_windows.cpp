// SPDX-License-Identifier: GPL-2.0-or-later
#include <windows.h>

#include "look/frame/status_panels.h"

namespace nautrel {

bool capsLockIsOn() {
  return (GetKeyState(VK_CAPITAL) & 1) != 0;
}

}  // namespace nautrel
