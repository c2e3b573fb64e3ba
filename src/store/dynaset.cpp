// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/dynaset.h"

#include <algorithm>
#include <utility>

#include "platform/errors.h"

namespace nautrel {

Dynaset::Dynaset(std::shared_ptr<Connection> connection, std::string_view table)
    : Cursor(std::move(connection), table, {}) {
  // Unordered, the engine reads the rows' numbers from the narrow index, a tenth of the walk.
  Statement rows(*connection_, "SELECT rowid FROM " + sqlName(table_));
  while (rows.step()) rows_.push_back(rows.integer(0));
  std::sort(rows_.begin(), rows_.end());
  if (rows_.empty())
    leave(Place::End);
  else
    goTo(0);
}

int Dynaset::position() {
  const bool nowhere = inGap_ || place_ == Place::Before || place_ == Place::End;
  return nowhere ? -1 : index_;
}

void Dynaset::first() {
  goTo(0);
}

void Dynaset::last() {
  goTo(size() - 1LL);
}

void Dynaset::next() {
  if (atEnd()) raise(NoCurrentRecord);
  const auto index = target(1);
  if (index < size()) return goTo(index);
  leave(Place::End);
  drop();
}

void Dynaset::move(int rows) {
  if (rows == 0 && inGap_) raise(RecordDeleted);
  goTo(target(rows));
}

long long Dynaset::target(int rows) const {
  if (place_ == Place::Before) return -1LL + rows;
  if (place_ == Place::End) return static_cast<long long>(size()) + rows;
  return static_cast<long long>(index_) + rows - (inGap_ && rows > 0 ? 1 : 0);
}

void Dynaset::goTo(long long index) {
  if (index < 0 || index >= size()) raise(NoCurrentRecord);
  fetch(rows_[static_cast<std::size_t>(index)]);
  index_ = static_cast<int>(index);
  inGap_ = false;
  release();
  drop();
}

void Dynaset::leave(Place end) {
  inGap_ = false;
  place_ = end;
}

void Dynaset::refetch() {
  goTo(index_);
}

void Dynaset::removed() {
  rows_.erase(rows_.begin() + index_);
  inGap_ = true;
}

}  // namespace nautrel
