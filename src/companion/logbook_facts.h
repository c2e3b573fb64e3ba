// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/text.h"

namespace nautrel::exchange {

/// A logbook's file as a person tells it from another.
struct LogbookFacts {
  std::string changed;  // date and time of the last change, "not there" without a file
  std::string size;     // "348 KB"
  std::string dives;    // "31 dives", "no dives that could be counted"
  bool sound = false;   // whether they could be counted
};

/// Looks at it, and never raises.
LogbookFacts factsOf(const std::string& path, const Locale& locale = {});

}  // namespace nautrel::exchange
