// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

namespace nautrel {

/// What a column of a list needs of the page's width, in any unit.
struct ColumnNeed {
  double least = 0;   // below it a number, a date or a word of the head breaks
  double words = 0;   // below it words of the cells break; not less than `least`
  double enough = 0;  // with it cells stand on one line; not less than `words`
  double share = 1;   // how columns share out what is over
};

/// The widths of columns that together take the whole width, each as near to its need as the
/// others let it: numbers first, then words, then whole cells, and the rest by their shares.
std::vector<double> columnWidths(const std::vector<ColumnNeed>& needs, double width);

/// The sum of one measure of all columns.
double sumOf(const std::vector<ColumnNeed>& needs, double ColumnNeed::*measure);

}  // namespace nautrel
