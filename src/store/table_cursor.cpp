// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/table_cursor.h"

#include <limits>
#include <utility>

#include "platform/errors.h"

namespace nautrel {
namespace {

constexpr auto kLastRow = std::numeric_limits<std::int64_t>::max();

}  // namespace

TableCursor::TableCursor(std::shared_ptr<Connection> connection, std::string_view table,
                         const std::vector<std::string>& columns)
    : Cursor(std::move(connection), table, columns) {}

int TableCursor::count() {
  if (!count_) {
    Statement counting(*connection_, "SELECT count(*) FROM " + sqlName(table_));
    counting.step();
    count_ = static_cast<int>(counting.integer(0));
  }
  return *count_;
}

int TableCursor::position() {
  arrive();
  if (place_ != Place::Row) return -1;
  Statement counting(*connection_, "SELECT count(*) FROM " + sqlName(table_) + " WHERE rowid < ?1");
  counting.bind(1, row_);
  counting.step();
  return static_cast<int>(counting.integer(0));
}

void TableCursor::first() {
  if (!seek(kFirstRow)) raise(NoCurrentRecord);
  drop();
}

void TableCursor::last() {
  goTo(rowUpTo(kLastRow, 0));
}

void TableCursor::next() {
  if (atEnd()) raise(NoCurrentRecord);
  drop();
  if (place_ == Place::Before)
    seek(kFirstRow);
  else
    live() ? step() : seek(row_ + 1);
}

void TableCursor::move(int rows) {
  arrive();
  const bool nowhere = place_ == Place::Before || atEnd();
  if (rows == 0 && nowhere) raise(NoCurrentRecord);
  if (rows == 0) {
    release();
    fetch(row_);
    drop();
  } else if (rows > 0) {
    goTo(atEnd() ? std::nullopt : rowFrom(nowhere ? kFirstRow : row_ + 1, rows - 1));
  } else {
    const bool before = place_ == Place::Before;
    goTo(before ? std::nullopt : rowUpTo(nowhere ? kLastRow : row_ - 1, -1LL - rows));
  }
}

void TableCursor::goTo(std::optional<std::int64_t> row) {
  if (!row) raise(NoCurrentRecord);
  seek(*row);
  drop();
}

std::optional<std::int64_t> TableCursor::rowFrom(std::int64_t limit, std::int64_t skipped) {
  return rowBeside(forwards_, ">= ?1 ORDER BY rowid", limit, skipped);
}

std::optional<std::int64_t> TableCursor::rowUpTo(std::int64_t limit, std::int64_t skipped) {
  return rowBeside(backwards_, "<= ?1 ORDER BY rowid DESC", limit, skipped);
}

std::optional<std::int64_t> TableCursor::rowBeside(Statement& way, const char* order,
                                                   std::int64_t limit, std::int64_t skipped) {
  if (!way)
    way = Statement(*connection_, "SELECT rowid FROM " + sqlName(table_) + " WHERE rowid " + order +
                                      " LIMIT 1 OFFSET ?2");
  way.bind(1, limit);
  way.bind(2, skipped);
  std::optional<std::int64_t> row;
  if (way.step()) row = way.integer(0);
  way.reset();
  return row;
}

void TableCursor::refetch() {
  if (!live()) fetch(row_);
  release();
}

/// A set that was empty stays at its end.
void TableCursor::added(std::int64_t row) {
  if (place_ == Place::Opened && !rowUpTo(row - 1, 0)) place_ = Place::End;
  if (count_) ++*count_;
}

void TableCursor::removed() {
  if (count_) --*count_;
}

}  // namespace nautrel
