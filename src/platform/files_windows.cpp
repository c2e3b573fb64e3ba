#include <windows.h>

#include "platform/files.h"

namespace nautrel {
namespace {

// The mode bits tell nothing of the access lists, so the system is asked by opening.
bool opens(const std::filesystem::path& path, DWORD access, DWORD flags) {
  const HANDLE handle =
      CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, flags, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  CloseHandle(handle);
  return true;
}

}  // namespace

bool sameName(const std::filesystem::path& one, const std::filesystem::path& other) {
  return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool mayWrite(const std::filesystem::path& file) {
  return opens(file, GENERIC_WRITE, FILE_ATTRIBUTE_NORMAL);
}

bool mayMakeFileIn(const std::filesystem::path& folder) {
  return opens(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS);
}

}  // namespace nautrel
