// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/Modul1.h"

#include "platform/errors.h"
#include "shell/FrameForm.h"
#include "shell/Shell.h"

namespace nautrel {
namespace {

// Below this width of the main window, in twips, the third panel has no room.
constexpr double kStatusWidth = 10335;

}  // namespace

void Modul1::Startfenster() {
  resumeNext([&] { LogbuchPruefen(); });
  if (LogbuchLeer) return;
  resumeNext([&] {
    const int number = startWindow(app_.desktop().GetSetting("Start", "Window"));
    if (number == 0) return;
    app_.MDIForm1().setStartWindow(number);
    app_.show(number);
  });
}

void Modul1::LogbuchPruefen() {
  LogbuchLeer = app_.openLogbook({"Nr"}).RecordCount() == 0;
}

void Modul1::NummernLesen() {
  resumeNext([&] {
    auto rows = app_.openLogbook({"Nr"});
    resumeNext([&] { rows.MoveLast(); });
    resumeNext([&] { LetzteNummer = rows.Fields(0); });
    resumeNext([&] { rows.MoveFirst(); });
    resumeNext([&] { ErsteNummer = rows.Fields(0); });
  });
}

void Modul1::FortschrittAnzeigen() {
  auto& frame = app_.MDIForm1();
  frame.StatusBar1.setVisible(false);
  frame.Picture1.setVisible(true);
  frame.ProgressBar1.setMax(FortschrittMaximum);
}

void Modul1::FortschrittBeenden() {
  auto& frame = app_.MDIForm1();
  frame.ProgressBar1.setValue(0);
  frame.Picture1.setVisible(false);
  frame.StatusBar1.setVisible(true);
}

void Modul1::MenuesFreigeben() {
  app_.MDIForm1().gateCommands(true);
}
void Modul1::MenuesSperren() {
  app_.MDIForm1().gateCommands(false);
}

void Modul1::StatusAktualisieren() {
  auto& frame = app_.MDIForm1();
  const auto& locale = app_.desktop().locale();
  std::string status =
      "<Logbuch.mdb> Dives Logged: " + std::to_string(app_.openLogbook({"Nr"}).RecordCount());
  LogbuchPruefen();
  if (!LogbuchLeer) {
    NummernLesen();
    status += " (" + ErsteNummer.joined(locale) + " to " + LetzteNummer.joined(locale) + ")";
  }
  if (frame.Width() < kStatusWidth) status.clear();
  frame.StatusBar1.setPanelText(3, status);
}

}  // namespace nautrel
