// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "store/database.h"

namespace nautrel {

/// A window's cursor over a table, with its navigator. It opens after Form_Load, on the first row.
/// What it reads for a grid is beside its own row, which a look at the grid never moves.
class DataControl : public Navigator {
 public:
  DataControl(Form& form, std::string name, Workspace& workspace, std::string_view recordSource);

  void setDatabaseName(std::string path) { databaseName_ = std::move(path); }
  /// Raises 91 before the control has opened.
  class Recordset& Recordset();
  /// Reopens and stands on the first row. Where that fails the rows of before stay.
  void Refresh();

  /// Raised after opening, Refresh and every move that ends on a row.
  Event Reposition;
  /// Raised after opening and Refresh, for a grid.
  Event Filled;

  void open() override { Refresh(); }
  void go(Arrow arrow) override;

  /// What a grid shows. A row counts from 0; its texts have flags as "True" and "False". Each
  /// raises what the reading does.
  /// @{
  std::vector<std::string> headings();
  int rowCount();
  std::vector<std::string> row(int index);
  /// @}

 private:
  class Recordset& reader();
  void toNearestRow();

  Workspace& workspace_;
  std::string databaseName_;
  std::string recordSource_;
  std::optional<class Recordset> recordset_;
  std::optional<class Recordset> reader_;
};

}  // namespace nautrel
