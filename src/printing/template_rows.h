// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>

#include "platform/text.h"
#include "printing/selection_formula.h"
#include "printing/template_marks.h"
#include "printing/template_text.h"
#include "store/database.h"

namespace nautrel {

/// The rows of a table that take part in a report, with the columns that its template names. Raises
/// what Database::OpenRecordset raises.
class TemplateRows {
 public:
  TemplateRows(Database database, std::string_view table, const Names& names,
               const SelectionFormula& selection, const Locale& locale);

  /// Calls `visit` with the values of each row. Empty text counts as No, so that a template can
  /// leave out what was not filled in; "Plz or Ort" is Yes if one of the two is there.
  void each(const std::function<void(Values)>& visit);

 private:
  Columns namedColumns(std::string_view table, const Names& names) const;
  bool selected() const;
  Values current() const;

  const SelectionFormula* selection_;  // null if it does not concern the table
  Columns columns_;
  std::vector<std::string> choices_;  // names that are alternatives
  Recordset rows_;
  const Locale& locale_;
};

}  // namespace nautrel
