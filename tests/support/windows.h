// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

namespace nautrel {

#ifdef _WIN32
inline constexpr bool kOnWindows = true;
#else
inline constexpr bool kOnWindows = false;
#endif

inline constexpr auto kNoLinks = "the library makes no symbolic links on Windows";
inline constexpr auto kNoModes = "access lists bind a person on Windows, mode bits do not";
inline constexpr auto kFileIsHeld = "Windows lets nobody exchange or remove a file that is open";
inline constexpr auto kToldBefore = "Windows tells before that a file cannot be opened";

}  // namespace nautrel

/// At a test's begin, or where the rest of it cannot hold there.
#define NOT_ON_WINDOWS(why) \
  if (nautrel::kOnWindows) GTEST_SKIP() << (why)
