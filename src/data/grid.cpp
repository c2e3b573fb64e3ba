// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/grid.h"

#include "data/data_control.h"
#include "platform/errors.h"

namespace nautrel {

void Grid::setDataSource(DataControl& source) {
  source_ = &source;
  source.Filled = [this] { fill(); };
}

void Grid::fill() {
  headings_ = source_->headings();
  rows_.assign(static_cast<std::size_t>(source_->rowCount()), std::nullopt);
  ++generation_;
  changed();
}

// The rows are read while the look paints, where no failure may go further.
const Grid::Row& Grid::row(int index) {
  auto& kept = rows_.at(static_cast<std::size_t>(index));
  if (!kept) {
    kept.emplace();
    resumeNext([&] { *kept = source_->row(index); });
    kept->resize(headings_.size());
  }
  return *kept;
}

void Grid::setWidth(double width) {
  if (width < 0) raise(InvalidPropertyValue);
  width_ = width;
  changed();
}

void Grid::setHeight(double height) {
  if (height < 0) raise(InvalidPropertyValue);
  height_ = height;
  changed();
}

}  // namespace nautrel
