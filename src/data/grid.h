// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/control.h"

namespace nautrel {

class DataControl;

/// A table to look at: the names of the columns above, an empty fixed column at the left, and the
/// rows of its data control. Each row is read when it is first looked at, and kept.
class Grid : public Control {
 public:
  using Control::Control;
  using Row = std::vector<std::string>;

  /// Takes over what the data control holds whenever it has opened. It must outlive the grid's use
  /// of it.
  void setDataSource(DataControl& source);

  const std::vector<std::string>& headings() const { return headings_; }
  int rowCount() const { return static_cast<int>(rows_.size()); }
  /// A row that can no longer be read is empty.
  const Row& row(int index);
  bool isRead(int index) const { return rows_.at(static_cast<std::size_t>(index)).has_value(); }
  /// Grows with every filling, so that a look sees that the rows are others.
  unsigned generation() const { return generation_; }

  /// The most room it takes, in twips. Raise 380 below 0.
  /// @{
  double Width() const { return width_; }
  double Height() const { return height_; }
  void setWidth(double width);
  void setHeight(double height);
  /// @}

  bool takesFocus() const override { return true; }

 private:
  void fill();

  DataControl* source_ = nullptr;
  std::vector<std::string> headings_;
  std::vector<std::optional<Row>> rows_;
  unsigned generation_ = 0;
  double width_ = 0;
  double height_ = 0;
};

}  // namespace nautrel
