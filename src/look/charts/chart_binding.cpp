// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_binding.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "look/convert.h"
#include "look/frame/form_view.h"
#include "look/frame/qt_looks.h"
#include "look/system/qt_desktop.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {

ChartBinding::ChartBinding(Chart& chart, ChartWidget& widget)
    : Binding(chart, widget), chart_(chart), out_(widget) {
  auto& desktop = chart.form().program().desktop();
  widget.edge = [&desktop](const auto& step) { desktop.atEdge(step); };
}

void ChartBinding::pushContent() {
  ChartData data{toQt(chart_.categoryTitle()),
                 toQt(chart_.valueTitle()),
                 {},
                 static_cast<ChartKind>(chart_.chartType()),
                 chart_.AllowDynamicRotation()};
  for (const auto& [label, value] : chart_.entries()) data.rows.push_back({toQt(label), value});
  out_.setData(std::move(data));
}

void QtDesktop::copy(const Chart& chart) {
  const auto* view = looks_ == nullptr ? nullptr : looks_->viewOf(chart.form());
  auto* binding = view == nullptr ? nullptr : view->bindingOf(chart);
  if (binding == nullptr) return;
  binding->push();
  if (const auto* widget = qobject_cast<ChartWidget*>(binding->widget()))
    QGuiApplication::clipboard()->setMimeData(widget->copy().release());
}

}  // namespace nautrel
