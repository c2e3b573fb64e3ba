// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/chart.h"

#include <utility>

#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {

Chart::Chart(Form& form, std::string name, Design design)
    : Control(form, std::move(name)),
      categoryTitle_(std::move(design.categoryTitle)),
      valueTitle_(std::move(design.valueTitle)),
      type_(design.type) {
  for (auto& label : design.labels) entries_.push_back({std::move(label)});
}

void Chart::setRow(int row) {
  if (row < 1 || row > static_cast<int>(entries_.size())) raise(InvalidPropertyValue);
  row_ = row;
}

void Chart::setRowLabel(std::string label) {
  selected().label = std::move(label);
  changed();
}

void Chart::setData(std::string_view value) {
  selected().value = readNumber(value, form().program().desktop().locale());
  changed();
}

void Chart::setChartType(Type type) {
  type_ = type;
  changed();
}

void Chart::setAllowDynamicRotation(bool allowed) {
  rotation_ = allowed;
  changed();
}

void Chart::EditCopy() const {
  form().program().desktop().copyChart(*this);
}

Chart::Entry& Chart::selected() {
  return entries_.at(static_cast<std::size_t>(row_ - 1));
}

}  // namespace nautrel
