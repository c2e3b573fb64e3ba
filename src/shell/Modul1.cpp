#include "shell/Modul1.h"

#include <array>
#include <string_view>

#include "platform/errors.h"
#include "shell/MDIForm1.h"
#include "shell/Nautrel.h"

namespace nautrel {
namespace {

struct StartWindow {
  std::string_view setting;
  int number;
};

constexpr std::array<StartWindow, 17> kStartWindows{{
    {"Print dive-list", 9},
    {"Personal information", 7},
    {"Dive equipment", 15},
    {"Sort logbook", 8},
    {"Insert dive", 2},
    {"Edit dive", 4},
    {"Delete dive", 5},
    {"View logbook", 3},
    {"Logbook table", 13},
    {"Search a word", 12},
    {"Search a number", 14},
    {"Full search", 20},
    {"Statistic", 6},
    {"Graph years", 10},
    {"Graph month", 11},
    {"Unit calculations", 21},
    {"Calculations", 22},
}};

// Below this width of the main window, in twips, the third panel has no room.
constexpr double kStatusWidth = 10335;

Recordset openLogbook(Nautrel& app, const Columns& columns) {
  return app.workspace().OpenDatabase(app.databasePath()).OpenRecordset("Logbuch", columns);
}

}  // namespace

int startWindow(const std::string& setting) {
  for (const auto& [known, number] : kStartWindows)
    if (known == setting) return number;
  return 0;
}

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
  LogbuchLeer = openLogbook(app_, {"Nr"}).RecordCount() == 0;
}

void Modul1::NummernLesen() {
  resumeNext([&] {
    auto rows = openLogbook(app_, {"Nr"});
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
      "<Logbuch.mdb> Dives Logged: " + std::to_string(openLogbook(app_, {"Nr"}).RecordCount());
  LogbuchPruefen();
  if (!LogbuchLeer) {
    NummernLesen();
    status += " (" + ErsteNummer.joined(locale) + " to " + LetzteNummer.joined(locale) + ")";
  }
  if (frame.Width() < kStatusWidth) status.clear();
  frame.StatusBar1.setPanelText(3, status);
}

}  // namespace nautrel
