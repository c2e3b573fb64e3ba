// SPDX-License-Identifier: GPL-2.0-or-later
#include <cstdio>

#include "platform/errors.h"
#include "store/delivered.h"

/// make_logbook PATH: makes the delivered logbook, unless there is one.
int main(int count, char** arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: make_logbook PATH\n");
    return 2;
  }
  try {
    nautrel::createDeliveredLogbook(arguments[1]);
  } catch (const nautrel::RunTimeError& failure) {
    std::fprintf(stderr, "make_logbook: %s\n", failure.text.c_str());
    return 1;
  }
}
