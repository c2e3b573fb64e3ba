// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/contract.h"

namespace nautrel::exchange {

/// What a text column holds; nothing for Null.
using Cell = std::optional<std::string>;

/// A row of a table that holds only texts, by ordinal.
using TextRow = std::vector<Cell>;

inline constexpr int kDiveColumns = std::size(kLogbuchColumns);

/// A dive as its columns, texts and flags as they are stored.
struct DiveRecord {
  std::array<Cell, kDiveColumns> texts;
  std::bitset<kDiveColumns> flags;

  /// The text of a column, Null as the empty one.
  std::string_view text(int ordinal) const {
    return texts[ordinal] ? std::string_view(*texts[ordinal]) : std::string_view();
  }

  friend bool operator==(const DiveRecord&, const DiveRecord&) = default;
};

/// A column of `Logbuch` as files and reports name it.
struct DiveColumn {
  std::string_view name = {};   // in the table
  std::string_view label = {};  // to a person
  std::string_view unit = {};   // empty where there is none
  int boxLength = 0;            // characters that the entry windows hold, 0 for any number
  bool isNumber = false;        // may hold a decimal sign
  bool isFlag = false;
};
const DiveColumn& diveColumn(int ordinal);

/// The diver's card and the equipment, by the ordinals of their tables.
namespace Karte {
enum Ordinal : int {
  Vorname,
  Nachname,
  Straße,
  Plz,
  Ort,
  Land,
  Tel,
  Fax,
  Email,
  Geb,
  Cerdat,
  Org,
  Level,
  Cernr,
  Inst,
  Weitere,
  Count
};
}  // namespace Karte
namespace Stück {
enum Ordinal : int {
  Gegenstand,
  Fabrikant,
  Seriennummer,
  Kaufdatum,
  Garantie,
  Kaufort,
  Info,
  Nr,
  Preis,
  Count
};
}  // namespace Stück

/// True if no column holds a text.
bool isBlank(const TextRow& row);

}  // namespace nautrel::exchange
