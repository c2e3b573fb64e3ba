#include "dives/jump.h"

#include "platform/text.h"
#include "shell/Modul1.h"
#include "shell/Nautrel.h"
#include "store/contract.h"

namespace nautrel {

std::string askForDive(Nautrel& app) {
  auto& shared = app.Modul1();
  const auto& locale = app.desktop().locale();
  shared.NummernLesen();
  return app.desktop().InputBox("Please enter a dive number between " +
                                    shared.ErsteNummer.joined(locale) + " and " +
                                    shared.LetzteNummer.joined(locale) + "!",
                                "Jump to dive-#");
}

bool isLastDive(Nautrel& app, const std::string& answer) {
  const auto& last = app.Modul1().LetzteNummer;
  return !last.isNull() && answer == last.joined(app.desktop().locale());
}

void jumpToDive(Nautrel& app, Recordset& dives, const std::string& answer) {
  const auto& shared = app.Modul1();
  const auto& locale = app.desktop().locale();
  const double target = readNumber(answer, locale);
  if (target > shared.LetzteNummer.number(locale) || target < shared.ErsteNummer.number(locale))
    return;
  dives.Move(toInt32(target - dives.Fields(Feld::Nr).number(locale)));
}

}  // namespace nautrel
