// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/windows.h"

#include <algorithm>
#include <array>

#include "shell/Modul1.h"

namespace nautrel {
namespace {

constexpr bool kExclusive = true;
constexpr bool kNeedsDives = true;

// clang-format off
constexpr std::array<WindowEntry, 19> kWindows{{
    {Windows::PrintDiveList, "Print dive-list", "Menü1a", "drucken", "", kExclusive, kNeedsDives},
    {Windows::PersonalInformation, "Personal information", "Menü1b", "benutzer", "", kExclusive},
    {Windows::DiveEquipment, "Dive equipment", "Menü1c", "ausrüstung", "", kExclusive},
    {Windows::SortLogbook, "Sort logbook", "Menü1d", "nummerieren", "", kExclusive, kNeedsDives},
    {Windows::Preferences, "", "Menü1g"},
    {Windows::InsertDive, "Insert dive", "Menü2a", "einfügen", "Menü6a", kExclusive},
    {Windows::EditDive, "Edit dive", "Menü2b", "ändern", "Menü6b", kExclusive, kNeedsDives},
    {Windows::DeleteDive, "Delete dive", "Menü2c", "löschen", "", kExclusive, kNeedsDives},
    {Windows::ViewLogbook, "View logbook", "Menü3a", "logbuch", "Menü6c", kExclusive, kNeedsDives},
    {Windows::LogbookTable, "Logbook table", "Menü3d", "tabelle", "", kExclusive, kNeedsDives},
    {Windows::SearchWord, "Search a word", "Menü3b", "suchbegriff", "Menü6d", kExclusive, kNeedsDives, &Modul1::VonWortsuche},
    {Windows::SearchNumber, "Search a number", "Menü3c", "numerische", "Menü6e", kExclusive, kNeedsDives, &Modul1::VonZahlensuche},
    {Windows::FullSearch, "Full search", "Menü3e", "ausführlich", "", kExclusive, kNeedsDives, &Modul1::VonVollsuche},
    {Windows::Statistic, "Statistic", "Menü4a", "statistik", "Menü6f", kExclusive, kNeedsDives},
    {Windows::YearGraph, "Graph years", "Menü4b", "jahre", "Menü6g", kExclusive, kNeedsDives},
    {Windows::MonthGraph, "Graph month", "Menü4c", "monate", "Menü6h", kExclusive, kNeedsDives},
    {Windows::UnitCalculation, "Unit calculations", "Menü7a", "einheiten"},
    {Windows::Calculations, "Calculations", "Menü7c", "volumen"},
    {Windows::Information, "", "Menü5b"},
}};
// clang-format on

}  // namespace

std::span<const WindowEntry> windowTable() {
  return kWindows;
}

const WindowEntry& windowEntry(int number) {
  return *std::ranges::find(kWindows, number, &WindowEntry::number);
}

std::vector<int> exclusiveWindows() {
  std::vector<int> numbers;
  for (const auto& window : kWindows)
    if (window.exclusive) numbers.push_back(window.number);
  std::ranges::sort(numbers);
  return numbers;
}

int startWindow(const std::string& setting) {
  const auto found = std::ranges::find(kWindows, setting, &WindowEntry::start);
  return setting.empty() || found == kWindows.end() ? 0 : found->number;
}

}  // namespace nautrel
