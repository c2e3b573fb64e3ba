#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/grid.h"
#include "store/database.h"

namespace nautrel {

/// A window's cursor over a table, with its navigator. It opens after Form_Load, on the first row.
/// As the source of a grid it reads the rows beside its own, which a look at the grid never moves.
class DataControl : public Navigator, public GridSource {
 public:
  DataControl(Form& form, std::string name, Workspace& workspace, std::string recordSource);

  void setDatabaseName(std::string path) { databaseName_ = std::move(path); }
  /// Raises 91 before the control has opened.
  class Recordset& Recordset();
  /// Reopens and stands on the first row. Where that fails the rows of before stay.
  void Refresh();

  /// Raised after opening, Refresh and every move that ends on a row.
  Event Reposition;

  void open() override { Refresh(); }
  void go(Arrow arrow) override;

  std::vector<std::string> headings() override;
  int rowCount() override;
  std::vector<std::string> row(int index) override;

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
