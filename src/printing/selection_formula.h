// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "platform/text.h"

namespace nautrel {

/// The rows that take part in a report: those of one table whose column is a number in a range,
/// written "ToNumber ({Logbuch.Nr}) in 3 to 9". A column that holds no number is out of the range.
class SelectionFormula {
 public:
  /// The empty formula selects every row. Raises ReportFault for one that cannot be read.
  SelectionFormula(const std::string& formula, const Locale& locale);

  bool concerns(std::string_view table) const { return table_ == table; }
  const std::string& column() const { return column_; }
  bool selects(std::string_view value) const;

 private:
  const Locale& locale_;
  std::string table_;
  std::string column_;
  double first_ = 0;
  double last_ = 0;
};

}  // namespace nautrel
