// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "exchange/format.h"
#include "store/lock.h"

namespace nautrel::exchange {

/// Keeps the other programs from the logbook while it lives. Raises Refused where one has it.
class Hold {
 public:
  explicit Hold(const std::string& logbook) : lock_(logbook) {
    if (lock_.isInUse()) throw Refused{std::string(kLogbookInUse)};
  }

 private:
  LogbookLock lock_;
};

}  // namespace nautrel::exchange
