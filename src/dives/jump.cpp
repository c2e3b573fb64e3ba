// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/jump.h"

#include "shell/Modul1.h"
#include "shell/Shell.h"

namespace nautrel {

std::string askForDive(Shell& app) {
  auto& shared = app.Modul1();
  const auto& locale = app.desktop().locale();
  shared.NummernLesen();
  return app.desktop().InputBox("Please enter a dive number between " +
                                    shared.ErsteNummer.joined(locale) + " and " +
                                    shared.LetzteNummer.joined(locale) + "!",
                                "Jump to dive-#");
}

bool isLastDive(Shell& app, const std::string& answer) {
  const auto& last = app.Modul1().LetzteNummer;
  return !last.isNull() && answer == last.joined(app.desktop().locale());
}

std::optional<double> diveInRange(Shell& app, const std::string& answer) {
  const auto& shared = app.Modul1();
  const auto& locale = app.desktop().locale();
  const double dive = readNumber(answer, locale);
  if (dive > shared.LetzteNummer.number(locale) || dive < shared.ErsteNummer.number(locale))
    return {};
  return dive;
}

}  // namespace nautrel
