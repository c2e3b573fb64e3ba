// SPDX-License-Identifier: GPL-2.0-or-later
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "store/lock.h"

namespace nautrel {

// Locking asks for no right to write, so that a file made by another user of the logbook does.
LogbookLock::LogbookLock(const std::string& logbook) {
  const auto file = fileFor(logbook);
  if (file.empty()) return;
  constexpr int kFlags = O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  const int opened = open(file.c_str(), kFlags, 0666);
  handle_ = opened;
  inUse_ = opened >= 0 && flock(opened, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

LogbookLock::~LogbookLock() {
  if (handle_ >= 0) close(static_cast<int>(handle_));
}

}  // namespace nautrel
