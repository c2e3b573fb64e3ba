// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel {

/// A logbook and what the database engine lays beside it: by their names alone it knows what
/// belongs together.
inline constexpr std::array<std::string_view, 4> kSideFiles{"", "-wal", "-shm", "-journal"};

// What is done to a database's file as a whole, whatever stands in it.

/// What the engine finds damaged in it, a line each; nothing in a sound file. Raises what
/// OpenDatabase raises.
std::vector<std::string> damageOf(const std::string& path);

/// Copies it as it stands at one moment, with what waits in its log, while other programs work with
/// it. The copy has no log; `copy` must not be there, and after a failure it is no database. Raises
/// what OpenDatabase raises, and 3260 where another program keeps it locked.
void copyDatabase(const std::string& path, const std::string& copy);

/// Writes what waits in the log into the file and takes the log away. Raises 3260 if any other
/// program has the file open, 3027 if it cannot be written, 3026 (disk full), and 3343 or 51 where
/// it is damaged; the log stays then.
void takeLogIn(const std::string& path);

}  // namespace nautrel
