// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "look/bindings/binding.h"
#include "look/charts/chart_widget.h"
#include "platform/chart.h"

namespace nautrel {

/// Shows a Chart.
class ChartBinding : public Binding {
 public:
  ChartBinding(Chart& chart, ChartWidget& widget);

 protected:
  void pushContent() override;

 private:
  Chart& chart_;
  ChartWidget& out_;
};

}  // namespace nautrel
