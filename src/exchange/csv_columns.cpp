// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/csv_columns.h"

#include <algorithm>
#include <utility>

#include "exchange/dates.h"
#include "exchange/plain_text.h"
#include "platform/text.h"
#include "store/contract.h"

namespace nautrel::exchange {
namespace {

struct Head {
  std::string name;  // lower case, nothing but letters and what is no sign
  std::string unit;
  int tank = 1;
};

/// "cylinder size (1) [l]" is "cylindersize" in "l", of tank 1.
Head readHead(std::string_view text) {
  Head head;
  std::string inside;
  bool open = false;
  for (const char letter : lowerCase(text)) {
    if (letter == '(' || letter == '[') {
      open = true;
      inside.clear();
    } else if (letter == ')' || letter == ']') {
      open = false;
      if (const auto number = readWhole(inside))
        head.tank = *number;
      else
        head.unit = inside;
    } else if (open) {
      inside += letter;
    } else if (std::string_view(" \t.:#_-/").find(letter) == std::string_view::npos) {
      head.name += letter;
    }
  }
  return head;
}

struct Synonym {
  int role;
  std::string_view name;
};

/// Where several columns of a file mean the same, the name that stands first here wins.
constexpr Synonym kSynonyms[] = {
    {CsvRole::Date, "date"},
    {CsvRole::Date, "divedate"},
    {CsvRole::Date, "datetime"},
    {CsvRole::Date, "dateandtime"},
    {CsvRole::Date, "datum"},
    {CsvRole::Date, "startdate"},
    {Feld::Zeit, "duration"},
    {Feld::Zeit, "diveduration"},
    {Feld::Zeit, "bottomtime"},
    {Feld::Zeit, "runtime"},
    {Feld::Zeit, "dauer"},
    {Feld::Zeit, "tauchzeit"},
    {Feld::Zeit, "divetime"},
    {CsvRole::Clock, "time"},
    {CsvRole::Clock, "starttime"},
    {CsvRole::Clock, "entrytime"},
    {CsvRole::Clock, "timein"},
    {CsvRole::Clock, "uhrzeit"},
    {CsvRole::Clock, "divetime"},
    {Feld::Tiefe, "maxdepth"},
    {Feld::Tiefe, "maximumdepth"},
    {Feld::Tiefe, "maxtiefe"},
    {Feld::Tiefe, "maximaltiefe"},
    {Feld::Tiefe, "depth"},
    {Feld::Tiefe, "tiefe"},
    {Feld::Platz, "divesite"},
    {Feld::Platz, "site"},
    {Feld::Platz, "sitename"},
    {Feld::Platz, "tauchplatz"},
    {Feld::Platz, "location"},
    {Feld::Ort, "city"},
    {Feld::Ort, "island"},
    {Feld::Ort, "region"},
    {Feld::Ort, "ort"},
    {Feld::Ort, "location"},
    {Feld::Land, "country"},
    {Feld::Land, "land"},
    {Feld::Nr, "divenumber"},
    {Feld::Nr, "diveno"},
    {Feld::Nr, "number"},
    {Feld::Nr, "no"},
    {Feld::Nr, "nr"},
    {Feld::Buddy, "buddy"},
    {Feld::Buddy, "divebuddy"},
    {Feld::Buddy, "partner"},
    {Feld::Lang, "notes"},
    {Feld::Lang, "comments"},
    {Feld::Lang, "comment"},
    {Feld::Lang, "bemerkungen"},
    {Feld::Lang, "bemerkung"},
    {Feld::Lang, "notizen"},
    {Feld::Bars, "startpressure"},
    {Feld::Bare, "endpressure"},
    {Feld::Liter, "cylindersize"},
    {Feld::Liter, "tanksize"},
    {Feld::Liter, "cylindervolume"},
    {Feld::Liter, "tankvolume"},
    {Feld::Liter, "volume"},
    {CsvRole::Oxygen, "o2"},
    {CsvRole::Oxygen, "oxygen"},
    {CsvRole::Helium, "he"},
    {CsvRole::Helium, "helium"},
    {CsvRole::AirTemperature, "airtemp"},
    {CsvRole::AirTemperature, "airtemperature"},
    {CsvRole::AirTemperature, "lufttemperatur"},
    {CsvRole::WaterTemperature, "watertemp"},
    {CsvRole::WaterTemperature, "watertemperature"},
    {CsvRole::WaterTemperature, "wassertemperatur"},
    {Feld::Blei, "weight"},
    {Feld::Blei, "lead"},
    {Feld::Blei, "blei"},
    {Feld::Anzug, "suit"},
    {Feld::Anzug, "divesuit"},
    {Feld::Anzug, "anzug"},
    {Feld::Wetter, "weather"},
    {Feld::Wetter, "wetter"},
};

constexpr std::pair<std::string_view, CsvUnit> kUnits[] = {
    {"m", CsvUnit::Metre},        {"meter", CsvUnit::Metre},     {"meters", CsvUnit::Metre},
    {"metres", CsvUnit::Metre},   {"ft", CsvUnit::Foot},         {"feet", CsvUnit::Foot},
    {"foot", CsvUnit::Foot},      {"bar", CsvUnit::Bar},         {"psi", CsvUnit::Psi},
    {"kg", CsvUnit::Kilogram},    {"lb", CsvUnit::Pound},        {"lbs", CsvUnit::Pound},
    {"l", CsvUnit::Litre},        {"liter", CsvUnit::Litre},     {"litre", CsvUnit::Litre},
    {"cuft", CsvUnit::CubicFoot}, {"cu ft", CsvUnit::CubicFoot}, {"cf", CsvUnit::CubicFoot},
    {"min", CsvUnit::Minute},     {"mins", CsvUnit::Minute},     {"minutes", CsvUnit::Minute},
    {"s", CsvUnit::Second},       {"sec", CsvUnit::Second},      {"seconds", CsvUnit::Second},
    {"h", CsvUnit::Hour},         {"hr", CsvUnit::Hour},         {"hours", CsvUnit::Hour},
    {"%", CsvUnit::Percent},      {"c", CsvUnit::Celsius},       {"°c", CsvUnit::Celsius},
    {"f", CsvUnit::Fahrenheit},   {"°f", CsvUnit::Fahrenheit},   {"celsius", CsvUnit::Celsius},
};

}  // namespace

CsvUnit csvUnit(std::string_view name) {
  const auto wanted = lowerCase(trimmed(name));
  for (const auto& [known, unit] : kUnits)
    if (known == wanted) return unit;
  return CsvUnit::None;
}

bool isOfTank(int role) {
  constexpr int kRoles[] = {Feld::Liter, Feld::Bars, Feld::Bare, CsvRole::Oxygen, CsvRole::Helium};
  return std::find(std::begin(kRoles), std::end(kRoles), role) != std::end(kRoles);
}

std::vector<CsvColumn> csvColumns(const CsvRow& header) {
  std::vector<Head> heads;
  std::vector<CsvColumn> columns;
  for (const auto& cell : header.cells) {
    heads.push_back(readHead(cell.text));
    columns.push_back({.head = std::string(trimmed(cell.text)),
                       .unit = csvUnit(heads.back().unit),
                       .tank = heads.back().tank});
  }
  const auto has = [&](int role, int tank) {
    return std::any_of(columns.begin(), columns.end(), [&](const CsvColumn& column) {
      return column.role == role && column.tank == tank;
    });
  };
  for (const auto& [role, name] : kSynonyms)
    for (std::size_t place = 0; place < columns.size(); ++place) {
      auto& column = columns[place];
      if (heads[place].name == name && column.role == CsvRole::Unknown &&
          (column.tank == 1 || isOfTank(role)) && !has(role, column.tank))
        column.role = role;
    }
  return columns;
}

bool isProfileHeader(const CsvRow& header) {
  return std::any_of(header.cells.begin(), header.cells.end(), [](const CsvCell& cell) {
    return readHead(cell.text).name.starts_with("sampletime");
  });
}

}  // namespace nautrel::exchange
