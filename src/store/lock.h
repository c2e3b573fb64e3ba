// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nautrel {

/// What a program says that finds the logbook held by another.
inline constexpr std::string_view kLogbookInUse =
    "This logbook is in use by another Nautrel program.";

/// Tells the other programs on this machine that the logbook is in use. The system lets go of it at
/// whatever death of the process, and no child process keeps it.
class LogbookLock {
 public:
  /// Tries to take the lock; never waits, never raises. A logbook that is not there, or stands
  /// where nothing can be locked, counts as free.
  explicit LogbookLock(const std::string& logbook);
  ~LogbookLock();
  LogbookLock(const LogbookLock&) = delete;
  LogbookLock& operator=(const LogbookLock&) = delete;

  /// Whether another holds it.
  bool isInUse() const { return inUse_; }

  /// "Logbuch.lock" for "Logbuch.mdb": the file that is locked, beside the logbook itself behind
  /// all links. Empty if there is no logbook. It holds nothing and stays where it is, since taking
  /// it away could give two programs a lock each.
  static std::string fileFor(const std::string& logbook);

 private:
  std::intptr_t handle_ = -1;
  bool inUse_ = false;
};

}  // namespace nautrel
