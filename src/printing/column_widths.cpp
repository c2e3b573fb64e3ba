// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/column_widths.h"

#include <algorithm>

namespace nautrel {
namespace {

/// Between two measures of each column, as far from the first to the second as the width allows.
std::vector<double> between(const std::vector<ColumnNeed>& needs, double ColumnNeed::*from,
                            double ColumnNeed::*to, double width) {
  const double start = sumOf(needs, from);
  const double way = sumOf(needs, to) - start;
  const double part = way > 0 ? (width - start) / way : 0;
  std::vector<double> widths;
  for (const auto& need : needs) widths.push_back(need.*from + part * (need.*to - need.*from));
  return widths;
}

/// By their shares, but none below its words and none beyond what is enough for it.
std::vector<double> shared(const std::vector<ColumnNeed>& needs, double width) {
  std::vector<double> widths(needs.size());
  double most = 1;
  for (const auto& need : needs) most = std::max(most, need.enough / need.share);
  constexpr int kSteps = 50;
  for (double low = 0, step = 0; step < kSteps; ++step) {
    const double factor = (low + most) / 2;
    double sum = 0;
    for (std::size_t i = 0; i < needs.size(); ++i)
      sum += widths[i] = std::clamp(needs[i].share * factor, needs[i].words, needs[i].enough);
    (sum > width ? most : low) = factor;
  }
  return widths;
}

}  // namespace

double sumOf(const std::vector<ColumnNeed>& needs, double ColumnNeed::*measure) {
  double sum = 0;
  for (const auto& need : needs) sum += need.*measure;
  return sum;
}

std::vector<double> columnWidths(const std::vector<ColumnNeed>& needs, double width) {
  std::vector<double> widths;
  if (const double least = sumOf(needs, &ColumnNeed::least); least > width) {
    for (const auto& need : needs) widths.push_back(need.least * width / least);
    return widths;
  }
  if (sumOf(needs, &ColumnNeed::words) > width)
    return between(needs, &ColumnNeed::least, &ColumnNeed::words, width);
  const double enough = sumOf(needs, &ColumnNeed::enough);
  if (enough > width) return shared(needs, width);
  const double shares = sumOf(needs, &ColumnNeed::share);
  for (const auto& need : needs)
    widths.push_back(need.enough + (width - enough) * need.share / shares);
  return widths;
}

}  // namespace nautrel
