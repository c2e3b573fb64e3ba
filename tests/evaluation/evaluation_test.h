// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "support/logbook.h"

namespace nautrel {

class EvaluationTest : public LogbookTest {
 protected:
  /// What a pass over the logbook leaves behind at the main window.
  void expectAtRest() {
    const auto& frame = app->MDIForm1();
    EXPECT_EQ(frame.MousePointer(), 0);
    EXPECT_EQ(frame.ProgressBar1.Value(), 0);
    EXPECT_FALSE(frame.Picture1.visible());
    EXPECT_TRUE(frame.StatusBar1.visible());
  }
};

}  // namespace nautrel
