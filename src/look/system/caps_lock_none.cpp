// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/status_panels.h"

namespace nautrel {

bool capsLockIsOn() {
  return false;
}

}  // namespace nautrel
