#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

namespace nautrel {

/// Makes a file that looks as if it could be written and yet cannot be opened, and gives its path
/// back.
inline std::string unwritable(const std::string& path) {
  EXPECT_EQ(mknod(path.c_str(), S_IFSOCK | S_IRWXU, 0), 0);
  return path;
}

}  // namespace nautrel
