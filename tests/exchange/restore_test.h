// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <sqlite3.h>

#include <algorithm>
#include <map>

#include "exchange/restore.h"
#include "exchange/side_files.h"
#include "exchange_test.h"
#include "platform/errors.h"

namespace nautrel::exchange {

inline constexpr LocalTime kNow =
    std::chrono::local_days(std::chrono::year(2026) / 11 / 21) + std::chrono::hours(19);

/// Numbers of the dives in a file, or what the engine says of it.
inline std::string numbersIn(const std::string& path) {
  sqlite3* file = nullptr;
  sqlite3_open_v2(path.c_str(), &file, SQLITE_OPEN_READWRITE, nullptr);
  std::string numbers;
  char* message = nullptr;
  const auto collect = [](void* all, int, char** values, char**) {
    static_cast<std::string*>(all)->append(values[0]).append(" ");
    return 0;
  };
  constexpr auto kAsk =
      "SELECT Nr FROM Logbuch UNION ALL "
      "SELECT integrity_check FROM pragma_integrity_check WHERE integrity_check <> 'ok'";
  if (sqlite3_exec(file, kAsk, collect, &numbers, &message) != SQLITE_OK) numbers = message;
  sqlite3_free(message);
  sqlite3_close(file);
  return numbers;
}

/// False if the call is refused or fails.
template <class Call>
bool succeeds(Call&& call) {
  try {
    call();
  } catch (const Refused&) {
    return false;
  } catch (const RunTimeError&) {
    return false;
  }
  return true;
}

/// A logbook of dives 1 to 3, the last of which waits in the log that a crash has left, and a copy
/// of dives 77 and 78 to be put in its place.
class Restoring {
 public:
  static constexpr auto kOld = "1 2 3 ";
  static constexpr auto kNew = "77 78 ";

  Restoring() {
    static const auto made = make();
    for (const auto& [name, content] : made)
      (name == "copy.mdb" ? elsewhere : folder).write(name, content);
  }

  Restored restore() { return restoreLogbook(path, copy, kNow); }
  /// 0 if it is done, 1 if it is refused.
  int tryToRestore() {
    return succeeds([&] { restore(); }) ? 0 : 1;
  }

  /// The names in the folder.
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& file : filesIn(folder.path())) all.push_back(utf8(file.filename()));
    std::sort(all.begin(), all.end());
    return all;
  }

  static std::map<std::string, std::string> make() {
    Book old;
    for (const char* number : {"1", "2"}) old.add(plainDive(number));
    old.workspace.settle();
    old.add(plainDive("3"));
    Book other;
    for (const char* number : {"77", "78"}) other.add(plainDive(number));
    other.workspace.settle();
    return {{"Logbuch.mdb", readFile(old.path)},
            {"Logbuch.mdb-wal", readFile(old.path + "-wal")},
            {"copy.mdb", readFile(other.path)}};
  }

  TemporaryFolder folder;
  TemporaryFolder elsewhere;
  std::string path = folder.file(std::string(kLogbookFile));
  std::string copy = elsewhere.file("copy.mdb");
};

}  // namespace nautrel::exchange
