// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/windows.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace nautrel {

#ifdef _WIN32

inline std::string unwritable(const std::string& path) {
  return path;
}

class PlainUser {
 public:
  PlainUser() {}
};

#else

/// Makes a file that looks as if it could be written and yet cannot be opened, and gives its path
/// back.
inline std::string unwritable(const std::string& path) {
  EXPECT_EQ(mknod(path.c_str(), S_IFSOCK | S_IRWXU, 0), 0);
  return path;
}

/// While it lives nobody is the administrator, whom permissions do not bind.
class PlainUser {
 public:
  PlainUser() { become(kNobody); }
  ~PlainUser() { become(0); }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  void become(uid_t user) {
    if (administrator_) {
      EXPECT_EQ(setresuid(user, user, 0), 0);
    }
  }
  const bool administrator_ = geteuid() == 0;
};

#endif

}  // namespace nautrel
