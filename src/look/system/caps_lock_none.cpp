#include "look/frame/status_panels.h"

namespace nautrel {

bool capsLockIsOn() {
  return false;
}

}  // namespace nautrel
