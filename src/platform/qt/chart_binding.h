#pragma once

#include "platform/chart.h"
#include "platform/qt/binding.h"
#include "platform/qt/chart_widget.h"

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
