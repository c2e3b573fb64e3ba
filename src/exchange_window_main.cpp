// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/application.h"

int main(int argc, char** argv) {
  return nautrel::runCompanion(argc, argv);
}
