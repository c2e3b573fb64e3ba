// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/column_widths.h"

#include <gtest/gtest.h>

namespace nautrel {
namespace {

TEST(ColumnWidths, GoToNumbersThenToWordsThenToLinesAndTheRestByShares) {
  const std::vector<ColumnNeed> needs = {
      {20, 20, 20, 1}, {10, 40, 100, 1}, {10, 40, 200, 3}, {20, 20, 40, 1}};
  const std::pair<double, std::vector<double>> cases[] = {
      {30, {10, 5, 5, 10}},       // less than the numbers need
      {60, {20, 10, 10, 20}},     //
      {90, {20, 25, 25, 20}},     // between numbers and words
      {120, {20, 40, 40, 20}},    //
      {200, {20, 40, 105, 35}},   // by shares, and none beyond its need
      {360, {20, 100, 200, 40}},  //
      {420, {30, 110, 230, 50}}};
  for (const auto& [width, expected] : cases) {
    const auto widths = columnWidths(needs, width);
    ASSERT_EQ(widths.size(), expected.size());
    for (std::size_t i = 0; i < widths.size(); ++i)
      EXPECT_NEAR(widths[i], expected[i], 0.01) << width << ", column " << i;
  }
}

}  // namespace
}  // namespace nautrel
