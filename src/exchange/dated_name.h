// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <filesystem>
#include <string_view>

namespace nautrel::exchange {

/// A moment of the local calendar and clock.
using LocalTime = std::chrono::local_seconds;

/// What a copy is, as its name begins: "Logbuch-2026-11-21-195432.mdb" is a backup.
inline constexpr std::string_view kBackup = "Logbuch-";
inline constexpr std::string_view kReplaced = "Logbuch-replaced-";

/// A path in the folder under which nothing stands, neither a file nor a log: of this second, or of
/// the next one that is free. Such names sort by their time.
std::filesystem::path freeDatedPath(const std::filesystem::path& folder, std::string_view kind,
                                    LocalTime time);

/// Whether a file's name is exactly of this kind.
bool isDatedName(std::string_view name, std::string_view kind);

}  // namespace nautrel::exchange
