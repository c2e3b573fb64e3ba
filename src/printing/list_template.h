// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/report_document.h"

namespace nautrel {

/// A template of lines "name: value" for a list that runs over pages. The delivered Liste.rpt tells
/// the format in itself.
struct ListTemplate {
  std::string table;
  std::string title;
  std::string subtitle;
  std::string footer;
  ListLayout layout;
  std::vector<std::string> cells;  // the text of each column
};

/// Raises ReportFault with the line that cannot be read, or for a template without rows or columns.
ListTemplate parseListTemplate(std::string_view source);

}  // namespace nautrel
