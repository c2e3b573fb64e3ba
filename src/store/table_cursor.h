// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/cursor.h"

namespace nautrel {

/// Walks the table itself.
class TableCursor final : public Cursor {
 public:
  TableCursor(std::shared_ptr<Connection> connection, std::string_view table,
              const std::vector<std::string>& columns);

  int count() override;
  int position() override;
  void first() override;
  void last() override;
  void next() override;
  void move(int rows) override;

 private:
  void goTo(std::optional<std::int64_t> row);
  /// The row that comes when `skipped` rows from `limit` on are passed over, and its mirror image.
  /// @{
  std::optional<std::int64_t> rowFrom(std::int64_t limit, std::int64_t skipped);
  std::optional<std::int64_t> rowUpTo(std::int64_t limit, std::int64_t skipped);
  /// @}
  std::optional<std::int64_t> rowBeside(Statement& way, const char* order, std::int64_t limit,
                                        std::int64_t skipped);
  void refetch() override;
  void added(std::int64_t row) override;
  void removed() override;

  std::optional<int> count_;
  Statement forwards_;
  Statement backwards_;
};

}  // namespace nautrel
