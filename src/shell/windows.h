// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel {

class Modul1;

/// The windows by what they are for: Form<n> has the number n, the main window 0.
namespace Windows {
enum Number : int {
  Main = 0,
  Splash = 1,
  InsertDive = 2,
  ViewLogbook = 3,
  EditDive = 4,
  DeleteDive = 5,
  Statistic = 6,
  PersonalInformation = 7,
  SortLogbook = 8,
  PrintDiveList = 9,
  YearGraph = 10,
  MonthGraph = 11,
  SearchWord = 12,
  LogbookTable = 13,
  SearchNumber = 14,
  DiveEquipment = 15,
  Information = 16,
  Preferences = 18,
  FoundDives = 19,
  FullSearch = 20,
  UnitCalculation = 21,
  Calculations = 22
};
}  // namespace Windows

/// The ways into a window, and what goes with them. A way that it has not is empty.
struct WindowEntry {
  Windows::Number number;
  std::string_view start = {};    // its name under "Start"/"Window"; what its button tells
  std::string_view item = {};     // its command in the menu bar
  std::string_view key = {};      // its button in the toolbar
  std::string_view context = {};  // its command in the main window's context menu
  bool exclusive = false;         // its command unloads all others of the exclusive set
  bool needsDives = false;
  bool Modul1::*search = nullptr;  // whether a record window was opened from this search
};

/// All windows with a command, in the order of the menus.
std::span<const WindowEntry> windowTable();
const WindowEntry& windowEntry(int number);
/// The numbers of the exclusive set, ascending.
std::vector<int> exclusiveWindows();

/// The window of that name for the start; 0 for one that is unknown. Exact.
int startWindow(const std::string& setting);

}  // namespace nautrel
