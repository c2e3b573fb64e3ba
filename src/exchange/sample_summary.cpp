// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/sample_summary.h"

#include <algorithm>
#include <utility>

#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

bool isMandatoryStop(const XmlAttributes& attributes) {
  return attributes["kind"] == "mandatory" &&
         readFileNumber(attributes["duration"]).value_or(0) > 0;
}

}  // namespace

void SampleSummary::begin(std::string_view name, const XmlAttributes& attributes) {
  text_.clear();
  wanted_ =
      name == "depth" || name == "divetime" || name == "temperature" || name == "tankpressure";
  if (name == "tankpressure") {
    const auto tank = attributes["ref"];
    if (!firstPressure) tank_ = tank;
    ofFirstTank_ = tank == tank_;
  } else if (name == "decostop") {
    mandatoryStop = mandatoryStop || isMandatoryStop(attributes);
  }
}

void SampleSummary::end(std::string_view name) {
  if (!std::exchange(wanted_, false)) return;
  const auto number = readFileNumber(text_);
  if (!number) return;
  if (name == "depth")
    greatestDepth = std::max(greatestDepth, *number);
  else if (name == "divetime")
    lastTime = std::max(lastTime, *number);
  else if (name == "temperature")
    lowestTemperature = std::min(lowestTemperature.value_or(*number), *number);
  else
    takePressure(*number);
}

void SampleSummary::takePressure(double pressure) {
  if (!ofFirstTank_ || pressure <= 0) return;
  if (!firstPressure) firstPressure = pressure;
  lastPressure = pressure;
}

}  // namespace nautrel::exchange
