#include "store/table_cursor.h"

#include <limits>
#include <utility>

#include "platform/errors.h"

namespace nautrel {
namespace {

constexpr auto kFirstRow = std::numeric_limits<std::int64_t>::min();
constexpr auto kLastRow = std::numeric_limits<std::int64_t>::max();

}  // namespace

TableCursor::TableCursor(std::shared_ptr<Connection> connection, std::string_view table,
                         const std::vector<std::string>& columns)
    : Cursor(std::move(connection), table, columns) {
  seek(kFirstRow);
}

int TableCursor::count() {
  if (!count_) {
    Statement counting(*connection_, "SELECT count(*) FROM " + sqlName(table_));
    counting.step();
    count_ = static_cast<int>(counting.integer(0));
  }
  return *count_;
}

int TableCursor::position() {
  if (place_ != Place::Row) return -1;
  Statement counting(*connection_, "SELECT count(*) FROM " + sqlName(table_) + " WHERE rowid < ?1");
  counting.bind(1, row_);
  counting.step();
  return static_cast<int>(counting.integer(0));
}

void TableCursor::first() {
  drop();
  if (!seek(kFirstRow)) raise(NoCurrentRecord);
}

void TableCursor::last() {
  drop();
  const auto row = rowUpTo(kLastRow);
  if (!row) raise(NoCurrentRecord);
  seek(*row);
}

void TableCursor::next() {
  drop();
  if (atEnd()) raise(NoCurrentRecord);
  forward();
}

void TableCursor::previous() {
  drop();
  if (!backward()) raise(NoCurrentRecord);
}

void TableCursor::move(int rows) {
  drop();
  if (rows == 0) {
    if (place_ == Place::Before || place_ == Place::End) raise(NoCurrentRecord);
    fetch(row_);
  }
  for (; rows > 0; --rows)
    if (!forward()) raise(NoCurrentRecord);
  for (; rows < 0; ++rows) {
    if (backward()) continue;
    place_ = Place::Before;
    raise(NoCurrentRecord);
  }
}

bool TableCursor::forward() {
  if (atEnd()) return false;
  if (place_ == Place::Before) return seek(kFirstRow);
  return live() ? step() : seek(row_ + 1);
}

bool TableCursor::backward() {
  if (place_ == Place::Before) return false;
  const auto row = rowUpTo(atEnd() ? kLastRow : row_ - 1);
  return row && seek(*row);
}

std::optional<std::int64_t> TableCursor::rowUpTo(std::int64_t limit) {
  if (!backwards_)
    backwards_ = Statement(*connection_, "SELECT rowid FROM " + sqlName(table_) +
                                             " WHERE rowid <= ?1 ORDER BY rowid DESC LIMIT 1");
  backwards_.bind(1, limit);
  std::optional<std::int64_t> row;
  if (backwards_.step()) row = backwards_.integer(0);
  backwards_.reset();
  return row;
}

void TableCursor::refetch() {
  if (!live()) fetch(row_);
  release();
}

void TableCursor::added(std::int64_t) {
  if (count_) ++*count_;
}

void TableCursor::removed() {
  if (count_) --*count_;
}

}  // namespace nautrel
