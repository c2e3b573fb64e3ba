#include <unistd.h>

#include "platform/files.h"

namespace nautrel {

bool sameName(const std::filesystem::path& one, const std::filesystem::path& other) {
  return one == other;
}

bool mayWrite(const std::filesystem::path& file) {
  return access(file.c_str(), W_OK) == 0;
}

bool mayMakeFileIn(const std::filesystem::path& folder) {
  return access(folder.c_str(), W_OK | X_OK) == 0;
}

}  // namespace nautrel
