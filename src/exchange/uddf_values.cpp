// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_values.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "exchange/dive_lines.h"
#include "exchange/plain_text.h"
#include "exchange/units.h"

namespace nautrel::exchange {

// Some programs write bar or psi, one wrote litres: such numbers are none in pascals and m³.

double pascalsOf(double pressure) {
  constexpr double kBarsBelow = 400;
  constexpr double kPsiUpTo = 6000;
  if (pressure < kBarsBelow) return pressure * kPascalsOfBar;
  return pressure <= kPsiUpTo ? pressure * kPascalsOfPsi : pressure;
}

double cubicMetresOf(double volume) {
  return volume >= 1 ? volume * kCubicMetresOfLitre : volume;
}

namespace {

void number(DiveFiller& filler, const StandardDive& told, int column, std::string_view unit,
            const std::function<void(const std::string&, double)>& take) {
  if (!told[column]) return;
  if (const auto value = readFileNumber(*told[column]))
    take(*told[column] + std::string(unit), *value);
  else
    filler.noNumber(column, *told[column]);
}

void fillNumbers(DiveFiller& filler, const StandardDive& told) {
  using namespace Feld;
  number(filler, told, Zeit, " s", [&](auto& text, double s) { filler.duration(text, s); });
  number(filler, told, Tiefe, " m", [&](auto& text, double m) { filler.depth(text, m); });
  number(filler, told, Höhe, " m", [&](auto& text, double m) { filler.altitude(text, m); });
  number(filler, told, Blei, " kg", [&](auto& text, double kg) { filler.weight(text, kg); });
  number(filler, told, Liter, "",
         [&](auto& text, double volume) { filler.tankSize(text, cubicMetresOf(volume)); });
  for (const int column : {Bars, Bare})
    number(filler, told, column, "", [&](auto& text, double pressure) {
      filler.pressure(column, text, pascalsOf(pressure));
    });
}

/// Integers come with decimals, too.
std::optional<int> wholeOf(std::optional<double> number) {
  constexpr double kMost = 1e9;
  if (!number || *number != std::floor(*number) || std::abs(*number) > kMost) return {};
  return static_cast<int>(*number);
}

bool isOneOf(const Cell& text, std::initializer_list<std::string_view> words) {
  return text && std::find(words.begin(), words.end(), *text) != words.end();
}

void fillFlags(DiveFiller& filler, const StandardDive& told) {
  using namespace Feld;
  if (isOneOf(told[Salz], {"ocean-sea"})) filler.flag(Salz);
  if (isOneOf(told[Salz], {"lake-quarry", "river-spring"})) filler.flag(Süß);
  if (isOneOf(told[Ufer], {"beach-shore", "pier", "landside"})) filler.flag(Ufer);
  if (isOneOf(told[Ufer], {"small-boat", "charter-boat", "live-aboard", "barge"}))
    filler.flag(Boot);
  if (isOneOf(told[Alu], {"aluminium", "aluminum"})) filler.flag(Alu);
  if (isOneOf(told[Alu], {"steel"})) filler.flag(Stahl);
}

}  // namespace

void fillFromStandard(DiveFiller& filler, SourceDive& dive, const StandardDive& told) {
  using namespace Feld;
  if (told[Nr]) dive.number = wholeOf(readFileNumber(*told[Nr]));
  if (told[Tag]) filler.date(*told[Tag], readMoment(*told[Tag]));
  filler.text(Lang, told[Lang].value_or(""));
  fillNumbers(filler, told);
  fillFlags(filler, told);
  for (const int column : {Land, Platz, Buddy, Anzug, Grafik})
    if (told[column]) filler.text(column, *told[column]);
  // Where a program has no name of a city it repeats that of the site.
  if (told[Ort] && told[Ort] != told[Platz]) filler.text(Ort, *told[Ort]);
}

void fillFromSite(DiveFiller& filler, DiveRecord& record, const UddfDefinitions::Site& site) {
  constexpr double kSaltWater = 1010;
  if (record.text(Feld::Ort).empty()) filler.text(Feld::Ort, site.city);
  if (site.density >= kSaltWater && !record.flags[Feld::Süß]) filler.flag(Feld::Salz);
}

void fillFromSamples(DiveFiller& filler, const DiveRecord& record, const SampleSummary& samples) {
  if (record.text(Feld::Tiefe).empty()) filler.depth("of the samples", samples.greatestDepth);
  if (record.text(Feld::Zeit).empty()) filler.duration("of the samples", samples.lastTime);
  if (samples.mandatoryStop) filler.flag(Feld::Deco);
  if (!record.text(Feld::Bars).empty() || !samples.firstPressure) return;
  filler.pressure(Feld::Bars, "of the samples", pascalsOf(*samples.firstPressure));
  if (record.text(Feld::Bare).empty())
    filler.pressure(Feld::Bare, "of the samples", pascalsOf(*samples.lastPressure));
}

void tellKelvin(DiveFiller& filler, const std::string& label, std::string_view kelvin) {
  const auto temperature = readFileNumber(kelvin);
  if (!temperature || *temperature == 0) return;
  // Some programs write degrees Celsius.
  constexpr double kColdest = 150;
  tellTemperature(filler, label,
                  *temperature < kColdest ? *temperature : *temperature - kZeroCelsius);
}

void takeEdited(SourceDive& dive, const SourceDive& edited, int column, const std::string& told) {
  const auto change = [&](int each, std::string from, std::string to) {
    dive.changes.push_back({std::string(diveColumn(each).label), std::move(from), std::move(to),
                            "changed in another program"});
  };
  for (const int each : columnsToldBy(column)) {
    if (diveColumn(each).isFlag) {
      const bool now = edited.record.flags[each];
      if (dive.record.flags[each] != now) change(each, now ? "no" : "yes", now ? "yes" : "no");
      dive.record.flags[each] = now;
      continue;
    }
    // Those two come with more, or not at all, in a dive of another program.
    const bool asTold = each == Feld::Nr || each == Feld::Lang;
    const auto now = asTold ? told : std::string(edited.record.text(each));
    auto& text = dive.record.texts[each];
    if (now.empty() || text == now) continue;
    change(each, text.value_or(""), now);
    text = now;
  }
}

}  // namespace nautrel::exchange
