// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/xml_parser.h"

namespace nautrel::exchange {

/// What a dive's samples say beyond a profile, in the units of UDDF. They are not kept.
class SampleSummary {
 public:
  void begin(std::string_view name, const XmlAttributes& attributes);
  void text(std::string_view text) {
    if (wanted_ && text_.size() + text.size() <= kLongestNumber) text_ += text;
  }
  void end(std::string_view name);

  double greatestDepth = 0;
  double lastTime = 0;
  bool mandatoryStop = false;
  std::optional<double> lowestTemperature;
  /// Of the tank that comes first.
  std::optional<double> firstPressure;
  std::optional<double> lastPressure;

 private:
  static constexpr std::size_t kLongestNumber = 40;

  void takePressure(double pressure);

  bool wanted_ = false;
  std::string text_;
  std::string tank_;
  bool ofFirstTank_ = false;
};

}  // namespace nautrel::exchange
