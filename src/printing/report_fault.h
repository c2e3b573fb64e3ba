// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace nautrel {

/// A report that cannot be made, told in words for the user.
struct ReportFault {
  std::string text;
};

}  // namespace nautrel
