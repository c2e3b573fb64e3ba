// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/control.h"

namespace nautrel {

/// A table of rows with a tick each, one of them the current one. Its owner tells what stands in a
/// row whenever it is looked at.
class TickTable : public Control {
 public:
  struct Row {
    std::vector<std::string> cells;  // one for each heading
    bool ticked = false;
    std::string fixed = {};  // why the tick stays as it is; empty if the user may change it
  };
  using Source = std::function<Row(int)>;

  TickTable(Form& form, std::string name, std::vector<std::string> headings);

  const std::vector<std::string>& headings() const { return headings_; }
  int rowCount() const { return rows_; }
  Row row(int index) const { return source_(index); }

  /// Other rows; the first of them becomes the current one.
  void setRows(int count, Source source);
  /// The rows stay, what stands in them is new.
  void refreshRows();
  /// -1 without rows.
  int current() const { return current_; }

  /// Grow with every setRows(), and with every refreshRows() too, so that a look sees what is new.
  /// @{
  unsigned generation() const { return generation_; }
  unsigned stamp() const { return stamp_; }
  /// @}

  /// Another row is the current one, or the rows are others.
  Event Select;
  /// The user wants the tick of a row that is not fixed to change; the owner does it.
  std::function<void(int row)> Tick;

  /// What the user does at the table. Where there is no row, nothing happens.
  /// @{
  void userSelect(int row);
  /// A key that goes up or down by a number of rows, and stops at the ends.
  void userMove(int by);
  /// A press on the tick of a row.
  void userTick(int row);
  /// @}
  bool takesFocus() const override { return true; }

 private:
  void choose(int row);

  std::vector<std::string> headings_;
  int rows_ = 0;
  int current_ = -1;
  Source source_;
  unsigned generation_ = 0;
  unsigned stamp_ = 0;
};

}  // namespace nautrel
