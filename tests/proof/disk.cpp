// SPDX-License-Identifier: GPL-2.0-or-later
#include "proof/disk.h"

#include <sqlite3.h>

#if __has_include(<sys/wait.h>)
#include <unistd.h>

#include <csignal>
#endif

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <optional>
#include <vector>

#include "support/logbook.h"

namespace nautrel {
namespace {

constexpr long kNever = std::numeric_limits<long>::max();

/// A write, a new length or, without either, the deletion of a file.
struct Change {
  std::optional<std::size_t> offset;
  std::string bytes;
  std::optional<std::size_t> length = {};
};

struct Platter {
  std::optional<std::string> synced;  // nothing where there is no file
  std::vector<Change> since;
};

struct State {
  long calls = 0;
  long failsAt = kNever;
  bool lasting = false;
  long killsAt = kNever;
  std::map<std::string, Platter> files;
} disk;

sqlite3_vfs* below = nullptr;

struct File {
  sqlite3_file base;
  const std::string* path;
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File& self(sqlite3_file* file) {
  return *reinterpret_cast<File*>(file);
}

Platter& platter(const std::string& path) {
  const auto [it, isNew] = disk.files.try_emplace(path);
  if (isNew && std::filesystem::exists(path)) it->second.synced = readFile(path);
  return it->second;
}

void killThisProcess() {
#if __has_include(<sys/wait.h>)
  kill(getpid(), SIGKILL);
#endif
}

/// Whether this call is one that fails.
bool fails() {
  const long call = disk.calls++;
  if (call == disk.killsAt) killThisProcess();
  return call == disk.failsAt || (call > disk.failsAt && disk.lasting);
}

template <class Method, class... Arguments>
int through(sqlite3_file* file, int failure, Method sqlite3_io_methods::*method,
            Arguments... arguments) {
  if (fails()) return failure;
  auto* real = self(file).real();
  return (real->pMethods->*method)(real, arguments...);
}

int write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
  // A full disk is told in one way, a broken one in another.
  const int failure = disk.failsAt % 2 == 0 ? SQLITE_FULL : SQLITE_IOERR_WRITE;
  const int code = through(file, failure, &sqlite3_io_methods::xWrite, bytes, count, offset);
  if (code == SQLITE_OK)
    platter(*self(file).path)
        .since.push_back({static_cast<std::size_t>(offset),
                          {static_cast<const char*>(bytes), static_cast<std::size_t>(count)}});
  return code;
}

int truncate(sqlite3_file* file, sqlite3_int64 length) {
  const int code = through(file, SQLITE_IOERR_TRUNCATE, &sqlite3_io_methods::xTruncate, length);
  if (code == SQLITE_OK)
    platter(*self(file).path).since.push_back({{}, {}, static_cast<std::size_t>(length)});
  return code;
}

// No test waits for the real disk.
int sync(sqlite3_file* file, int) {
  if (fails()) return SQLITE_IOERR_FSYNC;
  platter(*self(file).path) = {readFile(*self(file).path), {}};
  return SQLITE_OK;
}

template <auto method, int failure>
struct Through;
template <class... Arguments, int (*sqlite3_io_methods::*method)(sqlite3_file*, Arguments...),
          int failure>
struct Through<method, failure> {
  static int call(sqlite3_file* file, Arguments... arguments) {
    if constexpr (failure != SQLITE_OK)
      return through(file, failure, method, arguments...);
    else
      return (self(file).real()->pMethods->*method)(self(file).real(), arguments...);
  }
};
template <auto method, int failure = SQLITE_OK>
constexpr auto kThrough = &Through<method, failure>::call;

using Io = sqlite3_io_methods;
const Io kMethods = {
    2,  // without memory maps, which would pass by
    kThrough<&Io::xClose>,
    kThrough<&Io::xRead, SQLITE_IOERR_READ>,
    write,
    truncate,
    sync,
    kThrough<&Io::xFileSize, SQLITE_IOERR_FSTAT>,
    kThrough<&Io::xLock, SQLITE_IOERR_LOCK>,
    kThrough<&Io::xUnlock>,
    kThrough<&Io::xCheckReservedLock>,
    kThrough<&Io::xFileControl>,
    kThrough<&Io::xSectorSize>,
    kThrough<&Io::xDeviceCharacteristics>,
    kThrough<&Io::xShmMap, SQLITE_IOERR_SHMMAP>,
    kThrough<&Io::xShmLock, SQLITE_IOERR_SHMLOCK>,
    [](sqlite3_file* file) { self(file).real()->pMethods->xShmBarrier(self(file).real()); },
    kThrough<&Io::xShmUnmap>,
    nullptr,
    nullptr,
};

int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given) {
  file->pMethods = nullptr;
  if (fails()) return SQLITE_CANTOPEN;
  auto& ours = self(file);
  const int code = below->xOpen(below, name, ours.real(), flags, given);
  if (ours.real()->pMethods != nullptr) file->pMethods = &kMethods;
  if (code != SQLITE_OK) return code;
  platter(name == nullptr ? "" : name);
  ours.path = &disk.files.find(name == nullptr ? "" : name)->first;
  return code;
}

int remove(sqlite3_vfs*, const char* name, int syncFolder) {
  if (fails()) return SQLITE_IOERR_DELETE;
  auto& file = platter(name);
  const int code = below->xDelete(below, name, syncFolder);
  if (code == SQLITE_OK) file.since.push_back({});
  return code;
}

sqlite3_vfs makeDisk() {
  below = sqlite3_vfs_find(nullptr);
  sqlite3_vfs made = *below;
  made.zName = "disk";
  made.pNext = nullptr;
  made.szOsFile = static_cast<int>(sizeof(File)) + below->szOsFile;
  made.xOpen = open;
  made.xDelete = remove;
  return made;
}

void change(std::optional<std::string>& content, const Change& change,
            const std::function<int(int)>& chance) {
  if (change.length) {
    if (content) content->resize(*change.length);
    return;
  }
  if (!content) content.emplace();
  auto count = change.bytes.size();
  if (chance(4) == 0) count = static_cast<std::size_t>(chance(static_cast<int>(count)));
  if (content->size() < *change.offset + count) content->resize(*change.offset + count);
  std::memcpy(content->data() + *change.offset, change.bytes.data(), count);
}

/// The file that is gone comes back whole, or the one after it begins empty.
std::optional<std::string> afterCut(const Platter& file, const std::function<int(int)>& chance) {
  auto content = file.synced;
  const int kept = chance(3);  // none, about half, all
  for (const auto& each : file.since) {
    const bool deletes = !each.offset && !each.length;
    if (kept == 0 || (kept == 1 && chance(2) == 0)) {
      if (deletes) break;
      continue;
    }
    if (deletes)
      content.reset();
    else
      change(content, each, chance);
  }
  return content;
}

}  // namespace

void Disk::heal() {
  static sqlite3_vfs ours = makeDisk();
  sqlite3_vfs_register(&ours, 1);
  disk = {};
}

long Disk::calls() {
  return disk.calls;
}

void Disk::failAt(long call, bool lasting) {
  disk.failsAt = call;
  disk.lasting = lasting;
}

void Disk::killAt(long call) {
  disk.killsAt = call;
}

bool Disk::hasFailed() {
  return disk.calls > disk.failsAt;
}

void Disk::cutPower(const std::function<int(int)>& chance) {
  for (const auto& [path, file] : disk.files) {
    if (path.empty()) continue;
    if (const auto content = afterCut(file, chance))
      std::ofstream(path, std::ios::binary) << *content;
    else
      std::filesystem::remove(path);
  }
  disk.files.clear();
}

}  // namespace nautrel
