#pragma once

#include <optional>
#include <string>

#include "platform/controls.h"
#include "store/database.h"

namespace nautrel {

/// A window's cursor over a table, with its navigator. It opens after Form_Load, on the first row.
class DataControl : public Navigator {
 public:
  DataControl(Form& form, std::string name, Workspace& workspace, std::string recordSource);

  void setDatabaseName(std::string path) { databaseName_ = std::move(path); }
  /// Raises 91 before the control has opened.
  class Recordset& Recordset();
  /// Reopens and stands on the first row.
  void Refresh();

  /// Raised after opening, Refresh and every move that ends on a row.
  Event Reposition;

  void open() override { Refresh(); }
  void go(Arrow arrow) override;

 private:
  Workspace& workspace_;
  std::string databaseName_;
  std::string recordSource_;
  std::optional<class Recordset> recordset_;
};

}  // namespace nautrel
