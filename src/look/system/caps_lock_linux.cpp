// SPDX-License-Identifier: GPL-2.0-or-later
#include <X11/XKBlib.h>
#include <QGuiApplication>

#include "look/frame/status_panels.h"

namespace nautrel {

bool capsLockIsOn() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->display() == nullptr) return false;
  unsigned indicators = 0;
  return XkbGetIndicatorState(x11->display(), XkbUseCoreKbd, &indicators) == Success &&
         (indicators & 1U) != 0;
}

}  // namespace nautrel
