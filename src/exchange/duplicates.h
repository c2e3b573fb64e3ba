// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "exchange/dive_record.h"
#include "platform/text.h"

namespace nautrel::exchange {

/// Finds the dives that stand in the logbook already: of the same date, the same minutes and a
/// depth that differs by half a foot at most. Each stored dive stands for one dive of a file, so
/// that of two like ones in the file the second is new.
class DuplicateFinder {
 public:
  explicit DuplicateFinder(const Locale& locale) : locale_(locale) {}

  void addStored(const DiveRecord& dive);
  /// The number of the stored dive that the dive repeats.
  std::optional<std::string> match(const DiveRecord& dive);

 private:
  struct Stored {
    std::optional<double> depth;
    std::string depthText;
    std::string number;
    bool matched = false;
  };

  std::string keyOf(const DiveRecord& dive) const;

  const Locale& locale_;
  std::map<std::string, std::vector<Stored>> stored_;
};

}  // namespace nautrel::exchange
