// SPDX-License-Identifier: GPL-2.0-or-later
#include <windows.h>

#include "platform/files.h"
#include "store/lock.h"

namespace nautrel {

// Locks a range instead of opening for itself alone: who merely looks at the file, a virus scanner
// say, is no second program.
LogbookLock::LogbookLock(const std::string& logbook) {
  const auto file = fileFor(logbook);
  if (file.empty()) return;
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE opened = CreateFileW(nativePath(file).c_str(), GENERIC_READ, kShared, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  handle_ = reinterpret_cast<std::intptr_t>(opened);
  OVERLAPPED place{};
  inUse_ =
      opened != INVALID_HANDLE_VALUE &&
      !LockFileEx(opened, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) &&
      GetLastError() == ERROR_LOCK_VIOLATION;
}

LogbookLock::~LogbookLock() {
  if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace nautrel
