#include "store/contract.h"

#include <array>

namespace nautrel {
namespace {

constexpr Column text(std::string_view name) {
  return {name, Kind::Text};
}
constexpr Column flag(std::string_view name) {
  return {name, Kind::Flag};
}

#define NAUTREL_TEXT(name) text(#name)
#define NAUTREL_FLAG(name) flag(#name)
constexpr Column kLogbuch[] = {NAUTREL_LOGBUCH(NAUTREL_TEXT, NAUTREL_FLAG)};

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
