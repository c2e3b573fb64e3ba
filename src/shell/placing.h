// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "shell/FrameForm.h"

namespace nautrel {

/// How far left of the frame's middle and above it a child stands with its own, in twips: half of
/// what frame, toolbar, status bar and menu take together.
inline constexpr double kLeftOfMiddle = 90;
inline constexpr double kAboveMiddle = 740;

/// The place that every child window takes at its load, by the measures of frame and window.
inline void placeInFrame(Form& child, const FrameForm& frame) {
  child.setLeft(frame.Width() / 2 - child.Width() / 2 - kLeftOfMiddle);
  child.setTop(frame.Height() / 2 - child.Height() / 2 - kAboveMiddle);
}

}  // namespace nautrel
