// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTableView>

#include "look/bindings/binding.h"
#include "platform/tick_table.h"

namespace nautrel {

/// A table with ticks in a window's design; TickTableBinding gives it its rows.
class TickTableView : public QTableView {
 public:
  explicit TickTableView(QWidget* parent = nullptr);
  QSize sizeHint() const override;
  /// How many rows a key goes up or down by; 0 for any other key.
  int rowsToMove(int key) const;
};

class TickModel;

/// Shows a TickTable: what stands in a row is asked for when it comes into sight. The current row
/// is the model's alone.
class TickTableBinding : public Binding {
 public:
  TickTableBinding(TickTable& table, TickTableView& view);
  void release() override;
  void restyle() override;

 protected:
  bool filter(QEvent* event) override;
  void pushContent() override;

 private:
  bool keyPressed(int key);
  void fitColumns();

  TickTable& table_;
  TickTableView& view_;
  TickModel* model_;
};

}  // namespace nautrel
