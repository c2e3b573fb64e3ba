// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/duplicates.h"

#include <cmath>

#include "exchange/dates.h"
#include "exchange/plain_text.h"
#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

constexpr double kAlike = 0.500001;  // feet; differences of decimals come out a little off

/// "5" and "05" are one day; a text that is no number stands for itself.
std::string wholeOrText(std::string_view text) {
  const auto number = readWhole(text);
  return number ? std::to_string(*number) : "'" + std::string(text);
}

}  // namespace

std::string DuplicateFinder::keyOf(const DiveRecord& dive) const {
  std::string key;
  for (const int column : {Feld::Jahr, Feld::Monat, Feld::Tag})
    (key += wholeOrText(dive.text(column))) += '-';
  const auto minutes = tryNumber(dive.text(Feld::Zeit), locale_);
  constexpr int kDecimals = 3;
  return key +
         (minutes ? fixedText(*minutes, kDecimals) : "'" + std::string(dive.text(Feld::Zeit)));
}

void DuplicateFinder::addStored(const DiveRecord& dive) {
  const auto depth = dive.text(Feld::Tiefe);
  stored_[keyOf(dive)].push_back({.depth = tryNumber(depth, locale_),
                                  .depthText = std::string(depth),
                                  .number = std::string(dive.text(Feld::Nr))});
}

std::optional<std::string> DuplicateFinder::match(const DiveRecord& dive) {
  const auto found = stored_.find(keyOf(dive));
  if (found == stored_.end()) return {};
  const auto text = dive.text(Feld::Tiefe);
  const auto depth = tryNumber(text, locale_);
  Stored* nearest = nullptr;
  double least = kAlike;
  for (auto& stored : found->second) {
    if (stored.matched) continue;
    double apart = stored.depthText == text ? 0 : kAlike + 1;
    if (depth && stored.depth) apart = std::abs(*depth - *stored.depth);
    if (apart > least || (nearest != nullptr && apart == least)) continue;
    nearest = &stored;
    least = apart;
  }
  if (nearest == nullptr) return {};
  nearest->matched = true;
  return nearest->number;
}

}  // namespace nautrel::exchange
