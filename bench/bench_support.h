// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>

namespace nautrel::bench {

inline constexpr int kFullLogbook = 9999;

/// A logbook in a folder of its own, gone at the end, with dives as divers write them: all columns
/// filled, comments from one line to a page.
class Logbook {
 public:
  explicit Logbook(int dives = kFullLogbook);
  ~Logbook();
  Logbook(const Logbook&) = delete;
  Logbook& operator=(const Logbook&) = delete;

  const std::string& path() const { return path_; }
  const std::filesystem::path& folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
  std::string path_;
};

/// The comments of dive `number` in such a logbook.
std::string comment(int number);

/// The engine itself, called without anything between: opened as the store opens it. What fails
/// ends the program.
class Bare {
 public:
  explicit Bare(const std::string& path);
  ~Bare();
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;

  void run(const char* sql);
  sqlite3_stmt* prepare(const char* sql);
  /// Gives the dives numbers from `number` on, in stored order, one change for each.
  void renumber(int number);
  /// Moves the log into the file, synced.
  void settle();

 private:
  sqlite3* handle_ = nullptr;
};

/// A pass over all rows and columns by calls of the engine itself. Takes every text as a string of
/// its own, as whoever works with it must.
void readAllBare(const std::string& path);

/// Measures a pair in turns: `ours` against `bare`, which does the same by calls of the engine
/// itself, both `times` times a round. Names the pair in the table of medians and ratios that
/// every bench prints at its end.
void compare(const std::string& name, int times, void (*ours)(benchmark::State&),
             void (*bare)(benchmark::State&));

}  // namespace nautrel::bench
