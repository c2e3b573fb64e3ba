// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/errors.h"

namespace nautrel {

/// The number of the failure that a statement raises; 0 if it raises none.
template <class Action>
int failureOf(Action&& action) {
  try {
    action();
  } catch (const RunTimeError& failure) {
    return failure.number;
  }
  return 0;
}

}  // namespace nautrel
