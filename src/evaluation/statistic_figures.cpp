// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/figures.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "store/contract.h"

namespace nautrel {
namespace {

constexpr double kMinutesPerHour = 60;

/// A number as its label holds it: every figure runs through its label's text from dive to dive,
/// so that it keeps 15 digits.
double throughLabel(double number, const Locale& locale) {
  // Next to a decimal of few places, and nearer than half of its 15th digit, the text says just
  // that decimal. Depths and times are nearly always such, and the detour costs more than the pass.
  constexpr double kPlaces = 1e4;
  constexpr double kMost = 1e11;
  constexpr double kNear = 4e-16;
  const double decimal = std::round(number * kPlaces) / kPlaces;
  if (std::abs(number) < kMost && std::abs(number - decimal) <= kNear * std::abs(number))
    return decimal;
  return readNumber(generalText(number, locale), locale);
}

std::string average(double number, const Locale& locale) {
  return formatNumber(throughLabel(number, locale), "#.##", locale);
}

/// The greatest or the smallest so far, from the limit that its label starts with.
class Record {
 public:
  Record(RecordFigure& shown, double start) : shown_(shown), best_(start) {}

  template <class Better>
  void compare(double number, const Value& stored, const Recordset& dives, const Locale& locale,
               Better better) {
    if (!better(number, best_)) return;
    best_ = number;
    shown_.value = stored.text(locale);
    shown_.number = dives.Fields(Feld::Nr).text(locale);
  }

 private:
  RecordFigure& shown_;
  double best_;
};

class StatisticPass {
 public:
  explicit StatisticPass(const Locale& locale) : locale_(locale) {}

  void take(const Recordset& dive);
  StatisticFigures close(int dives);

 private:
  void countBand(double depth);
  void countFlags(const Recordset& dive);
  void share(ShareFigure& figure) const;

  const Locale& locale_;
  StatisticFigures figures_;
  double minutes_ = 0;
  double feet_ = 0;
  Record longest_{figures_.longest, 0};
  Record shortest_{figures_.shortest, 999};
  Record deepest_{figures_.deepest, 0};
  Record shallowest_{figures_.shallowest, 999};
};

void StatisticPass::take(const Recordset& dive) {
  const Value time = dive.Fields(Feld::Zeit);
  const Value depth = dive.Fields(Feld::Tiefe);
  const double minutes = time.number(locale_);
  const double feet = depth.number(locale_);
  minutes_ = throughLabel(minutes_ + minutes, locale_);
  feet_ = throughLabel(feet_ + feet, locale_);
  longest_.compare(minutes, time, dive, locale_, std::greater{});
  shortest_.compare(minutes, time, dive, locale_, std::less{});
  deepest_.compare(feet, depth, dive, locale_, std::greater{});
  shallowest_.compare(feet, depth, dive, locale_, std::less{});
  countBand(feet);
  countFlags(dive);
}

void StatisticPass::countBand(double depth) {
  constexpr double kBand = 30;
  constexpr double kDeepestBand = 150;
  if (depth < 0) return;
  const double band = depth > kDeepestBand ? 5 : std::max(0.0, std::ceil(depth / kBand) - 1);
  ++figures_.depthBands[static_cast<std::size_t>(band)].dives;
}

void StatisticPass::countFlags(const Recordset& dive) {
  const auto count = [&](Feld::Ordinal column, ShareFigure& figure) {
    if (dive.Fields(column).isYes()) ++figure.dives;
  };
  count(Feld::Salz, figures_.saltWater);
  count(Feld::Süß, figures_.sweetWater);
  count(Feld::Deco, figures_.decoStop);
  count(Feld::Rep, figures_.repetitive);
  count(Feld::Ufer, figures_.fromShore);
  count(Feld::Boot, figures_.fromBoat);
}

void StatisticPass::share(ShareFigure& figure) const {
  if (figure.dives == 0) return;
  const double percent = static_cast<double>(figure.dives) / figures_.dives * 100;
  figure.percent = formatNumber(percent, "#", locale_) + " %";
}

StatisticFigures StatisticPass::close(int dives) {
  figures_.dives = dives;
  figures_.middleDivetime = average(minutes_ / dives, locale_);
  figures_.wholeDivetime = average(minutes_ / kMinutesPerHour, locale_);
  figures_.middleDepth = average(feet_ / dives, locale_);
  for (ShareFigure& band : figures_.depthBands) share(band);
  for (ShareFigure* figure : {&figures_.sweetWater, &figures_.saltWater, &figures_.fromBoat,
                              &figures_.fromShore, &figures_.repetitive, &figures_.decoStop})
    share(*figure);
  return figures_;
}

}  // namespace

Columns statisticColumns() {
  return {"Nr", "Zeit", "Tiefe", "Salz", "Süß", "Ufer", "Boot", "Deco", "Rep"};
}

StatisticFigures countStatistic(Recordset& dives, const Locale& locale, const DiveDone& done) {
  StatisticPass pass(locale);
  int counter = 0;
  for (dives.MoveFirst(); !dives.Eof(); dives.MoveNext()) {
    pass.take(dives);
    done(++counter);
  }
  StatisticFigures figures = pass.close(dives.RecordCount());
  dives.MoveLast();
  figures.lastNumber = dives.Fields(Feld::Nr);
  dives.MoveFirst();
  figures.firstNumber = dives.Fields(Feld::Nr);
  return figures;
}

}  // namespace nautrel
