// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "shell/FrameForm.h"

namespace nautrel {

/// The hourglass on the main window for the time of a block; a block that the end of the program
/// leaves does not put it back.
class Hourglass {
 public:
  explicit Hourglass(FrameForm& frame) : frame_(frame) { frame_.setMousePointer(11); }
  ~Hourglass() { frame_.setMousePointer(0); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  FrameForm& frame_;
};

}  // namespace nautrel
