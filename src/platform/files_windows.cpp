// SPDX-License-Identifier: GPL-2.0-or-later
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

/// The system drops dots and blanks at the end of a name.
std::wstring asOpened(const std::filesystem::path& name) {
  auto text = name.native();
  text.erase(text.find_last_not_of(L". ") + 1);
  return text;
}

}  // namespace

bool sameName(const std::filesystem::path& one, const std::filesystem::path& other) {
  return CompareStringOrdinal(asOpened(one).c_str(), -1, asOpened(other).c_str(), -1, TRUE) ==
         CSTR_EQUAL;
}

bool mayWrite(const std::filesystem::path& file) {
  return opens(file, GENERIC_WRITE, FILE_ATTRIBUTE_NORMAL);
}

bool mayMakeFileIn(const std::filesystem::path& folder) {
  return opens(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS);
}

// The names in a folder stand in the file system's own journal; only files are to be flushed.
bool syncToDisk(const std::filesystem::path& path) {
  std::error_code failed;
  if (std::filesystem::is_directory(path, failed)) return true;
  const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const bool flushed = FlushFileBuffers(handle) != 0;
  CloseHandle(handle);
  return flushed;
}

bool moveToFreeName(const std::filesystem::path& file, const std::filesystem::path& name) {
  return MoveFileExW(file.c_str(), name.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

// A new file has the rights of its folder, as the one before had.
void takeRights(const std::filesystem::path&, const std::filesystem::path&) {}

}  // namespace nautrel
