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

/// The ordinals of the columns of `Logbuch`. Windows read by them and write by name, and both must
/// hit the same column.
namespace Feld {
enum Ordinal : int {
  Nr,
  Land,
  Ort,
  Platz,
  Tag,
  Monat,
  Jahr,
  Zeit,
  Tiefe,
  Buddy,
  Lang,
  Salz,
  Süß,
  Ufer,
  Boot,
  Deco,
  Alu,
  Stahl,
  Liter,
  Bars,
  Bare,
  Wetter,
  Anzug,
  Höhe,
  Blei,
  Sichtg,
  Sichtm,
  Sichts,
  Rep,
  Grafik,
};
}  // namespace Feld

/// What a column holds: text of any length (empty and Null are different), or a Yes/No flag that
/// is never Null.
enum class Kind { Text, Flag };

struct Column {
  std::string_view name;
  Kind kind = Kind::Text;
};

struct Table {
  std::string_view name;
  std::span<const Column> columns;
  /// How many rows the delivered logbook has in it.
  int deliveredRows = 0;
};

/// All tables with their columns in order.
std::span<const Table> logbookTables();

}  // namespace nautrel
