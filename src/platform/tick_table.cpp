// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/tick_table.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {

TickTable::TickTable(Form& form, std::string name, std::vector<std::string> headings)
    : Control(form, std::move(name)), headings_(std::move(headings)) {}

void TickTable::setRows(int count, Source source) {
  rows_ = count;
  source_ = std::move(source);
  current_ = count > 0 ? 0 : -1;
  ++generation_;
  refreshRows();
  raiseEvent(Select);
}

void TickTable::refreshRows() {
  ++stamp_;
  changed();
}

void TickTable::choose(int row) {
  if (row == current_ || row < 0 || row >= rows_) return;
  current_ = row;
  changed();
  raiseEvent(Select);
}

void TickTable::userSelect(int row) {
  form().program().handle([&] {
    if (canTakeFocus() && form().enabled() && takeFocus()) choose(row);
  });
}

void TickTable::userMove(int by) {
  form().program().handle([&] {
    if (canTakeFocus() && form().enabled() && rows_ > 0)
      choose(std::clamp(current_ + by, 0, rows_ - 1));
  });
}

void TickTable::userTick(int row) {
  form().program().handle([&] {
    if (!canTakeFocus() || !form().enabled() || row < 0 || row >= rows_) return;
    if (!takeFocus()) return;
    choose(row);
    if (source_(row).fixed.empty() && Tick) Tick(row);
  });
}

}  // namespace nautrel
