// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dive_record.h"

#include <algorithm>

namespace nautrel::exchange {
namespace {

constexpr DiveColumn text(std::string_view name, std::string_view label, int boxLength) {
  return {.name = name, .label = label, .boxLength = boxLength};
}

constexpr DiveColumn number(std::string_view name, std::string_view label, std::string_view unit,
                            int boxLength) {
  return {.name = name,
          .label = label,
          .unit = unit,
          .boxLength = boxLength,
          .isNumber = !unit.empty()};
}

constexpr DiveColumn flag(std::string_view name, std::string_view label) {
  return {.name = name, .label = label, .isFlag = true};
}

constexpr std::array<DiveColumn, kDiveColumns> kColumns{{
    text("Nr", "Nr", 4),
    text("Land", "Country", 20),
    text("Ort", "City", 20),
    text("Platz", "Place", 20),
    text("Tag", "Day", 2),
    text("Monat", "Month", 2),
    text("Jahr", "Year", 4),
    number("Zeit", "Duration", "min", 3),
    number("Tiefe", "Max depth", "ft", 4),
    text("Buddy", "Buddy", 20),
    text("Lang", "Notes", 0),
    flag("Salz", "Salt"),
    flag("Süß", "Fresh"),
    flag("Ufer", "Shore"),
    flag("Boot", "Boat"),
    flag("Deco", "Deco"),
    flag("Alu", "Aluminum"),
    flag("Stahl", "Steel"),
    number("Liter", "Tank size", "cuft", 3),
    number("Bars", "Start pressure", "psi", 4),
    number("Bare", "End pressure", "psi", 4),
    text("Wetter", "Weather", 20),
    text("Anzug", "Suit", 20),
    text("Höhe", "Altitude", 6),
    number("Blei", "Weight", "lb", 3),
    flag("Sichtg", "Good visibility"),
    flag("Sichtm", "Medium visibility"),
    flag("Sichts", "Poor visibility"),
    flag("Rep", "Repetitive"),
    text("Grafik", "Picture", 255),
}};

// Of a column that the store gets and that is not told here, no file would hold anything.
static_assert(std::equal(kColumns.begin(), kColumns.end(), std::begin(kLogbuchColumns),
                         std::end(kLogbuchColumns),
                         [](const DiveColumn& ours, const Column& column) {
                           return ours.name == column.name &&
                                  ours.isFlag == (column.kind == Kind::Flag);
                         }));

}  // namespace

const DiveColumn& diveColumn(int ordinal) {
  return kColumns[static_cast<std::size_t>(ordinal)];
}

bool isBlank(const TextRow& row) {
  return std::all_of(row.begin(), row.end(),
                     [](const Cell& cell) { return !cell || cell->empty(); });
}

}  // namespace nautrel::exchange
