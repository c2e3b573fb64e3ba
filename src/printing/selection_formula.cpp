// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/selection_formula.h"

#include <regex>

#include "printing/report_fault.h"

namespace nautrel {

SelectionFormula::SelectionFormula(const std::string& formula, const Locale& locale)
    : locale_(locale) {
  if (formula.empty()) return;
  static const std::regex form(
      R"(\s*ToNumber\s*\(\s*\{([^.{}]+)\.([^.{}]+)\}\s*\)\s*in\s+(\S+)\s+to\s+(\S+)\s*)",
      std::regex::icase);
  std::smatch parts;
  const bool read = std::regex_match(formula, parts, form);
  const auto first = read ? tryNumber(parts[3].str(), locale) : std::nullopt;
  const auto last = read ? tryNumber(parts[4].str(), locale) : std::nullopt;
  if (!first || !last) throw ReportFault{"The selection \"" + formula + "\" cannot be read."};
  table_ = parts[1];
  column_ = parts[2];
  first_ = *first;
  last_ = *last;
}

bool SelectionFormula::selects(std::string_view value) const {
  const auto number = tryNumber(value, locale_);
  return number && *number >= first_ && *number <= last_;
}

}  // namespace nautrel
