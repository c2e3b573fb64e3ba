// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr Column kBenutzer[] = {"Vorname", "Nachname", "Straße", "Plz",    "Ort",    "Land",
                                "Tel",     "Fax",      "Email",  "Geb",    "Cerdat", "Org",
                                "Level",   "Cernr",    "Inst",   "Weitere"};

constexpr Column kAusrüstung[] = {"Gegenstand", "Fabrikant", "Seriennummer",
                                  "Kaufdatum",  "Garantie",  "Kaufort",
                                  "Info",       "Nr",        "Preis"};

constexpr Column kStatistik[] = {
    "Zeit_ges",   "Zeit_durch", "Längster",  "Kürzester", "Tiefe_max", "Tiefe_min", "Tiefe_durch",
    "0_bis_10",   "11_bis_20",  "21_bis_30", "31_bis_40", "41_bis_50", "größer_50", "Süsswasser",
    "Salzwasser", "Boot",       "Ufer",      "Rep",       "Deco"};

constexpr Table kTables[] = {
    {Tabelle::Logbuch, kLogbuchColumns, 0},
    {Tabelle::Benutzer, kBenutzer, 1},
    {Tabelle::Ausrüstung, kAusrüstung, 0},
    {Tabelle::Statistik, kStatistik, 1},
};

}  // namespace

std::span<const Table> logbookTables() {
  return kTables;
}

}  // namespace nautrel
