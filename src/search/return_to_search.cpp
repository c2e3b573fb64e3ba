#include "search/return_to_search.h"

#include <utility>

#include "shell/Modul1.h"
#include "shell/Nautrel.h"

namespace nautrel {

void returnToSearch(Nautrel& app) {
  const auto& shared = app.Modul1();
  const std::pair<bool, int> searches[] = {
      {shared.VonWortsuche, 12}, {shared.VonZahlensuche, 14}, {shared.VonVollsuche, 20}};
  for (const auto& [opened, number] : searches) {
    if (!opened) continue;
    if (auto* search = app.ifLoaded(number)) search->setWindowState(WindowState::Normal);
    app.unload(19);
  }
}

}  // namespace nautrel
