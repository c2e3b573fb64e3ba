// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace nautrel {

/// How a widget runs what Qt calls outside of any user action, such as painting. Whoever makes the
/// widget gives it one out of which nothing flies, since no exception may pass through Qt.
using Edge = std::function<void(const std::function<void()>& step)>;

}  // namespace nautrel
