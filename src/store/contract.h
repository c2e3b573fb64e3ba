// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace nautrel {

/// The name of the one data file, beside the executable.
inline constexpr std::string_view kLogbookFile = "Logbuch.mdb";

/// The names of the four tables.
namespace Tabelle {
inline constexpr std::string_view Logbuch = "Logbuch";
inline constexpr std::string_view Benutzer = "Benutzer";
inline constexpr std::string_view Ausrüstung = "Ausrüstung";
inline constexpr std::string_view Statistik = "Statistik";
}  // namespace Tabelle

/// What a column holds: text of any length (empty and Null are different), or a Yes/No flag that
/// is never Null.
enum class Kind { Text, Flag };

struct Column {
  constexpr Column(const char* name, Kind kind = Kind::Text) : name(name), kind(kind) {}
  std::string_view name;
  Kind kind;
};

/// The columns of `Logbuch` in order, each once: `Text(Nr)` is the ordinal `Feld::Nr` and the
/// column "Nr".
#define NAUTREL_LOGBUCH(Text, Flag)                                                             \
  Text(Nr), Text(Land), Text(Ort), Text(Platz), Text(Tag), Text(Monat), Text(Jahr), Text(Zeit), \
      Text(Tiefe), Text(Buddy), Text(Lang), Flag(Salz), Flag(Süß), Flag(Ufer), Flag(Boot),      \
      Flag(Deco), Flag(Alu), Flag(Stahl), Text(Liter), Text(Bars), Text(Bare), Text(Wetter),    \
      Text(Anzug), Text(Höhe), Text(Blei), Flag(Sichtg), Flag(Sichtm), Flag(Sichts), Flag(Rep), \
      Text(Grafik)

namespace Feld {
#define NAUTREL_ORDINAL(name) name
enum Ordinal : int { NAUTREL_LOGBUCH(NAUTREL_ORDINAL, NAUTREL_ORDINAL) };
#undef NAUTREL_ORDINAL
}  // namespace Feld

#define NAUTREL_TEXT(name) Column(#name)
#define NAUTREL_FLAG(name) Column(#name, Kind::Flag)
inline constexpr Column kLogbuchColumns[] = {NAUTREL_LOGBUCH(NAUTREL_TEXT, NAUTREL_FLAG)};
#undef NAUTREL_TEXT
#undef NAUTREL_FLAG

struct Table {
  std::string_view name;
  std::span<const Column> columns;
  /// How many rows the delivered logbook has in it.
  int deliveredRows = 0;
};

/// All tables with their columns in order.
std::span<const Table> logbookTables();

}  // namespace nautrel
