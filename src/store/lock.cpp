#include "store/lock.h"

#include "store/connection.h"

namespace nautrel {

std::string LogbookLock::fileFor(const std::string& logbook) {
  std::error_code failed;
  auto file = std::filesystem::canonical(fromUtf8(logbook), failed);
  if (failed || !std::filesystem::is_regular_file(file, failed)) return {};
  const auto path = file.replace_extension(".lock").u8string();
  return {path.begin(), path.end()};
}

}  // namespace nautrel
