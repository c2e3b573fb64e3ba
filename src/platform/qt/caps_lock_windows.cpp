#include <windows.h>

#include "platform/qt/status_panels.h"

namespace nautrel {

bool capsLockIsOn() {
  return (GetKeyState(VK_CAPITAL) & 1) != 0;
}

}  // namespace nautrel
