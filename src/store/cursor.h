// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/connection.h"
#include "store/contract.h"

namespace nautrel {

/// What the two kinds of recordset share: the row on which they stand, and the changes begun on it.
///
/// One statement serves every read: the rows from a given one on, in stored order. It is made and
/// goes to the first row when that is first asked for, since a count or a new row needs neither.
/// While it stands on a row it holds a snapshot of the file; release() lets go of it and keeps the
/// row's values.
class Cursor {
 public:
  virtual ~Cursor() = default;

  virtual int count() = 0;
  /// From 0; -1 without a current row.
  virtual int position() = 0;
  virtual void first() = 0;
  virtual void last() = 0;
  virtual void next() = 0;
  virtual void move(int rows) = 0;
  bool atEnd() {
    arrive();
    return place_ == Place::End;
  }

  std::span<const Column> columns() const { return contract_; }
  /// Raises 3265.
  int ordinalOf(std::string_view name) const;
  Value field(int ordinal);
  std::string_view text(int ordinal);
  bool isYes(int ordinal);
  Value fieldAfresh(int ordinal);

  void assign(int ordinal, const Value& value);
  void addNew();
  void edit();
  void update();
  void remove();

 protected:
  enum class Place { Opened, Row, Deleted, Before, End };

  static constexpr auto kFirstRow = std::numeric_limits<std::int64_t>::min();

  Cursor(std::shared_ptr<Connection> connection, std::string_view table,
         const std::vector<std::string>& columns);

  /// What needs a place calls it first; goes to the first row after the opening.
  void arrive() {
    if (place_ == Place::Opened) seek(kFirstRow);
  }
  /// Goes to the first row that is not before `from`; past the end if there is none.
  bool seek(std::int64_t from);
  /// The row after the one on which the walk stands.
  bool step();
  /// Reads this very row again; marks it as deleted if it is gone. Without effect where it fails;
  /// the row before must be released.
  void fetch(std::int64_t row);
  void release();
  bool live() const { return live_; }
  void drop() { pending_ = Pending::None; }

  /// Fetches the current row's newest values, and holds no snapshot afterwards.
  virtual void refetch() = 0;
  virtual void added(std::int64_t row) = 0;
  virtual void removed() = 0;

  std::shared_ptr<Connection> connection_;
  std::string table_;
  Place place_ = Place::Opened;
  std::int64_t row_ = 0;

 private:
  enum class Pending { None, AddNew, Edit };
  using Assigned = std::vector<std::pair<int, Value>>;

  void requireTable();
  void readShape();
  void chooseColumns(const std::vector<std::string>& columns);
  void prepareWalk();
  void requireColumn(int ordinal) const;
  void requireRow();
  const Value* kept(int ordinal);
  const Value* assigned(int ordinal) const;
  const Value& blank(int ordinal) const;
  void insertRow();
  void updateRow();
  void prepareUpdate();
  void requireChanged();
  void bindColumn(Statement& statement, int place, int ordinal, const Value& value) const;

  std::span<const Column> contract_;
  std::vector<std::string> sqlNames_;  // by ordinal
  std::vector<int> slots_;             // by ordinal: the place in the walk, or -1
  std::vector<int> ordinals_;          // by place in the walk

  Statement walk_;
  bool live_ = false;
  std::vector<Value> values_;  // by place in the walk, once released

  Pending pending_ = Pending::None;
  Assigned assigned_;
  Statement insert_;
  Statement update_;
  std::vector<int> updates_;  // the columns that update_ writes
  Statement remove_;
};

}  // namespace nautrel
