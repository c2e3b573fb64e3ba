// SPDX-License-Identifier: GPL-2.0-or-later
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

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

// Some file systems sync no folder, and say so.
bool syncToDisk(const std::filesystem::path& path) {
  const int opened = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (opened < 0) return false;
  const bool synced = fsync(opened) == 0 || errno == EINVAL;
  close(opened);
  return synced;
}

bool moveToFreeName(const std::filesystem::path& file, const std::filesystem::path& name) {
  if (renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0) return true;
  const bool unknown = errno == EINVAL || errno == ENOSYS;
  std::error_code failed;
  if (!unknown || std::filesystem::exists(std::filesystem::symlink_status(name, failed)))
    return false;
  std::filesystem::rename(file, name, failed);
  return !failed;
}

void takeRights(const std::filesystem::path& from, const std::filesystem::path& file) {
  struct stat rights {};
  if (stat(from.c_str(), &rights) != 0) return;
  const bool owned = chown(file.c_str(), rights.st_uid, rights.st_gid) == 0;
  mode_t mode = rights.st_mode & ACCESSPERMS;
  // It belongs to another now: to the one who has just written it, and to a group of his.
  if (const mode_t others = mode & S_IRWXO; !owned)
    mode = S_IRUSR | S_IWUSR | (others << 3) | others;
  chmod(file.c_str(), mode);
}

}  // namespace nautrel
