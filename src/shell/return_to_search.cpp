// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/return_to_search.h"

#include "shell/Shell.h"

namespace nautrel {

void returnToSearch(Shell& app) {
  for (const auto& window : windowTable()) {
    if (window.search == nullptr || !(app.Modul1().*window.search)) continue;
    if (auto* search = app.ifLoaded(window.number)) search->setWindowState(WindowState::Normal);
    app.unload(Windows::FoundDives);
  }
}

}  // namespace nautrel
