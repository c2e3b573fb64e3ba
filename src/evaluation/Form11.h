#pragma once

#include "evaluation/GraphForm.h"

namespace nautrel {

/// "Graph month": the share of each month in all dives, over all years.
class Form11 : public GraphForm {
 public:
  using App = Nautrel;
  explicit Form11(Nautrel& app);

 private:
  void fill() override;
};

}  // namespace nautrel
