// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel {

/// The texts beside the program that divers may edit.
inline constexpr std::array<std::string_view, 4> kTexts{"Liste.rpt", "Statistik.rpt",
                                                        "Benutzer.rpt", "nautrel.rtf"};

/// What belongs to the program in the folder of a logbook, and over which nothing is ever written:
/// the logbook itself and what the engine and the lock keep beside it, where it really is too if it
/// is a link; the programs, the texts and how these were delivered. Not all of it need be there.
std::vector<std::string> programFiles(const std::string& logbook);

}  // namespace nautrel
