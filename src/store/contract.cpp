#include "store/contract.h"

#include <array>

namespace nautrel {
namespace {

constexpr auto kFlag = Kind::Flag;

constexpr std::array<Column, 30> kLogbuch{{
    {"Nr"},         {"Land"},          {"Ort"},           {"Platz"},
    {"Tag"},        {"Monat"},         {"Jahr"},          {"Zeit"},
    {"Tiefe"},      {"Buddy"},         {"Lang"},          {"Salz", kFlag},
    {"Süß", kFlag}, {"Ufer", kFlag},   {"Boot", kFlag},   {"Deco", kFlag},
    {"Alu", kFlag}, {"Stahl", kFlag},  {"Liter"},         {"Bars"},
    {"Bare"},       {"Wetter"},        {"Anzug"},         {"Höhe"},
    {"Blei"},       {"Sichtg", kFlag}, {"Sichtm", kFlag}, {"Sichts", kFlag},
    {"Rep", kFlag}, {"Grafik"},
}};
static_assert(kLogbuch[Feld::Lang].name == "Lang" && kLogbuch[Feld::Süß].name == "Süß" &&
              kLogbuch[Feld::Stahl].name == "Stahl" && kLogbuch[Feld::Höhe].name == "Höhe" &&
              kLogbuch[Feld::Rep].name == "Rep" && kLogbuch[Feld::Grafik].name == "Grafik");

constexpr std::array<Column, 16> kBenutzer{{
    {"Vorname"},
    {"Nachname"},
    {"Straße"},
    {"Plz"},
    {"Ort"},
    {"Land"},
    {"Tel"},
    {"Fax"},
    {"Email"},
    {"Geb"},
    {"Cerdat"},
    {"Org"},
    {"Level"},
    {"Cernr"},
    {"Inst"},
    {"Weitere"},
}};

constexpr std::array<Column, 9> kAusrüstung{{
    {"Gegenstand"},
    {"Fabrikant"},
    {"Seriennummer"},
    {"Kaufdatum"},
    {"Garantie"},
    {"Kaufort"},
    {"Info"},
    {"Nr"},
    {"Preis"},
}};

constexpr std::array<Column, 19> kStatistik{{
    {"Zeit_ges"},  {"Zeit_durch"},  {"Längster"},  {"Kürzester"},  {"Tiefe_max"},
    {"Tiefe_min"}, {"Tiefe_durch"}, {"0_bis_10"},  {"11_bis_20"},  {"21_bis_30"},
    {"31_bis_40"}, {"41_bis_50"},   {"größer_50"}, {"Süsswasser"}, {"Salzwasser"},
    {"Boot"},      {"Ufer"},        {"Rep"},       {"Deco"},
}};

constexpr std::array<Table, 4> kTables{{
    {Tabelle::Logbuch, kLogbuch, 0},
    {Tabelle::Benutzer, kBenutzer, 1},
    {Tabelle::Ausrüstung, kAusrüstung, 0},
    {Tabelle::Statistik, kStatistik, 1},
}};

}  // namespace

std::span<const Table> logbookTables() {
  return kTables;
}

}  // namespace nautrel
