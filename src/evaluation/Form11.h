// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "evaluation/GraphForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Graph month": the share of each month in all dives, over all years.
class Form11 : public GraphForm {
 public:
  static constexpr int kNumber = Windows::MonthGraph;
  explicit Form11(Shell& app);

 private:
  void fill() override;
};

}  // namespace nautrel
