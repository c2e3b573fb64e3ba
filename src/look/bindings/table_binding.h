// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTableView>

#include "data/grid.h"
#include "look/bindings/binding.h"

namespace nautrel {

/// A table in a window's design; TableBinding gives it its rows.
class TableView : public QTableView {
 public:
  explicit TableView(QWidget* parent = nullptr);
  QSize sizeHint() const override;
};

class GridModel;

/// Shows a Grid without copying it: only the rows that come into sight are read.
class TableBinding : public Binding {
 public:
  TableBinding(Grid& grid, TableView& view);
  void release() override;

 protected:
  void pushContent() override;

 private:
  void fitColumns();

  Grid& grid_;
  TableView& view_;
  GridModel* model_;
};

}  // namespace nautrel
