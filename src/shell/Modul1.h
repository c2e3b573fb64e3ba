// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/value.h"

namespace nautrel {

class Shell;

/// What all windows share. The variables live from start to end and start empty; the two numbers
/// are fresh only after NummernLesen.
class Modul1 {
 public:
  explicit Modul1(Shell& app) : app_(app) {}

  Value ErsteNummer;   // `Nr` of the first row, as stored
  Value LetzteNummer;  // `Nr` of the last row, as stored
  bool LogbuchLeer = false;
  double FortschrittMaximum = 0;
  bool VonWortsuche = false;
  bool VonZahlensuche = false;
  bool VonVollsuche = false;
  bool ListeNachziehen = false;
  Value StatistikKnopf;  // "4" to "7"
  bool EinstellungenOffen = false;

  /// Opens the window chosen for the start; none with an empty logbook.
  void Startfenster();
  void LogbuchPruefen();
  /// On an empty logbook both numbers keep what they held.
  void NummernLesen();
  void FortschrittAnzeigen();
  void FortschrittBeenden();
  void MenuesFreigeben();
  void MenuesSperren();
  void StatusAktualisieren();

 private:
  Shell& app_;
};

/// As long as it lives, Form3's list follows its record.
class ListFollows {
 public:
  explicit ListFollows(Modul1& shared) : shared_(shared) { shared_.ListeNachziehen = true; }
  ~ListFollows() { shared_.ListeNachziehen = false; }
  ListFollows(const ListFollows&) = delete;
  ListFollows& operator=(const ListFollows&) = delete;

 private:
  Modul1& shared_;
};

}  // namespace nautrel
