// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "store/cursor.h"

namespace nautrel {

/// Walks a set of rows that is fixed when it opens.
class Dynaset final : public Cursor {
 public:
  Dynaset(std::shared_ptr<Connection> connection, std::string_view table);

  int count() override { return size(); }
  int position() override;
  void first() override;
  void last() override;
  void next() override;
  void move(int rows) override;

 private:
  int size() const { return static_cast<int>(rows_.size()); }
  long long target(int rows) const;
  void goTo(long long index);
  void leave(Place end);
  void refetch() override;
  void added(std::int64_t row) override { rows_.push_back(row); }
  void removed() override;

  std::vector<std::int64_t> rows_;
  int index_ = 0;
  bool inGap_ = false;  // the row at index_ followed the one that was deleted here
};

}  // namespace nautrel
