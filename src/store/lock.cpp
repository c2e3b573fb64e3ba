// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/lock.h"

#include "platform/files.h"

namespace nautrel {

std::string LogbookLock::fileFor(const std::string& logbook) {
  std::error_code failed;
  auto file = std::filesystem::canonical(nativePath(logbook), failed);
  if (failed || !std::filesystem::is_regular_file(file, failed)) return {};
  return utf8(file.replace_extension(".lock"));
}

}  // namespace nautrel
