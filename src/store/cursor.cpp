// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/cursor.h"

#include <algorithm>

#include "platform/errors.h"
#include "platform/text.h"

namespace nautrel {
namespace {

/// What a column of this kind stores for a value. Numbers are stored with a point, wherever the
/// diver lives.
Value stored(const Value& value, Kind kind) {
  const Locale point;
  if (kind == Kind::Flag) return value.number(point) != 0;
  return value.isNull() ? value : Value(value.text(point));
}

}  // namespace

Cursor::Cursor(std::shared_ptr<Connection> connection, std::string_view table,
               const std::vector<std::string>& columns)
    : connection_(std::move(connection)), table_(table) {
  requireTable();
  readShape();
  chooseColumns(columns);
  values_.resize(ordinals_.size());
}

void Cursor::requireTable() {
  const auto tables = logbookTables();
  const auto ours = std::find_if(tables.begin(), tables.end(),
                                 [&](const Table& table) { return table.name == table_; });
  if (ours == tables.end()) raise(TableNotFound, table_);
  contract_ = ours->columns;
  const int code =
      sqlite3_table_column_metadata(connection_->handle(), "main", table_.c_str(), nullptr, nullptr,
                                    nullptr, nullptr, nullptr, nullptr);
  if (code == SQLITE_ERROR) raise(TableNotFound, table_);
  if (code != SQLITE_OK) connection_->raiseFailure(code);
}

/// Holds the columns against the contract. What comes behind them is another tool's own.
void Cursor::readShape() {
  const Statement shape(*connection_, "SELECT * FROM " + sqlName(table_));
  const auto there = static_cast<std::size_t>(shape.columnCount());
  for (std::size_t ordinal = 0; ordinal < contract_.size(); ++ordinal) {
    const auto name = contract_[ordinal].name;
    const std::string_view found =
        ordinal < there ? shape.columnName(static_cast<int>(ordinal)) : "";
    if (found != name && lowerCase(found) != lowerCase(name))
      raiseBecause(ItemNotFound, "'" + std::string(name) + "'");
    sqlNames_.push_back(sqlName(found));
  }
}

void Cursor::chooseColumns(const std::vector<std::string>& columns) {
  slots_.assign(contract_.size(), -1);
  for (const auto& name : columns) ordinals_.push_back(ordinalOf(name));
  if (columns.empty())
    for (std::size_t all = 0; all < contract_.size(); ++all)
      ordinals_.push_back(static_cast<int>(all));
  for (std::size_t slot = 0; slot < ordinals_.size(); ++slot)
    slots_[ordinals_[slot]] = static_cast<int>(slot);
}

/// By name: if another tool changes the table while it is open, no column slips into the place of
/// another.
void Cursor::prepareWalk() {
  std::string sql = "SELECT rowid";
  for (const int ordinal : ordinals_) sql += ", " + sqlNames_[ordinal];
  walk_ = Statement(*connection_,
                    sql + " FROM " + sqlName(table_) + " WHERE rowid >= ?1 ORDER BY rowid");
}

bool Cursor::seek(std::int64_t from) {
  if (!walk_) prepareWalk();
  live_ = false;
  walk_.reset();
  walk_.bind(1, from);
  return step();
}

bool Cursor::step() {
  live_ = false;
  place_ = Place::Before;
  live_ = walk_.step();
  place_ = live_ ? Place::Row : Place::End;
  if (live_) row_ = walk_.integer(0);
  return live_;
}

void Cursor::fetch(std::int64_t row) {
  const auto place = place_;
  const auto before = row_;
  try {
    if (seek(row) && row_ == row) return;
  } catch (const RunTimeError&) {
    place_ = place;
    row_ = before;
    throw;
  }
  walk_.reset();
  live_ = false;
  row_ = row;
  place_ = Place::Deleted;
}

void Cursor::release() {
  if (!live_) return;
  for (std::size_t slot = 0; slot < values_.size(); ++slot)
    values_[slot] = walk_.value(static_cast<int>(slot) + 1, contract_[ordinals_[slot]].kind);
  walk_.reset();
  live_ = false;
}

int Cursor::ordinalOf(std::string_view name) const {
  const auto found = std::find_if(contract_.begin(), contract_.end(),
                                  [&](const Column& column) { return column.name == name; });
  if (found == contract_.end()) raise(ItemNotFound);
  return static_cast<int>(found - contract_.begin());
}

void Cursor::requireColumn(int ordinal) const {
  if (ordinal < 0 || ordinal >= static_cast<int>(contract_.size())) raise(ItemNotFound);
}

void Cursor::requireRow() {
  arrive();
  if (place_ == Place::Deleted) raise(RecordDeleted);
  if (place_ != Place::Row) raise(NoCurrentRecord);
}

const Value* Cursor::assigned(int ordinal) const {
  for (const auto& [column, value] : assigned_)
    if (column == ordinal) return &value;
  return nullptr;
}

const Value& Cursor::blank(int ordinal) const {
  static const Value kNo(false);
  static const Value kNothing = Value::null();
  return contract_[ordinal].kind == Kind::Flag ? kNo : kNothing;
}

/// A column's value where the cursor itself holds it; null where the walk does.
const Value* Cursor::kept(int ordinal) {
  requireColumn(ordinal);
  if (pending_ != Pending::None) {
    if (const Value* value = assigned(ordinal)) return value;
    if (pending_ == Pending::AddNew) return &blank(ordinal);
  }
  if (!live_) requireRow();
  const int slot = slots_[ordinal];
  if (slot < 0) raise(ItemNotFound);
  return live_ ? nullptr : &values_[slot];
}

Value Cursor::field(int ordinal) {
  const Value* value = kept(ordinal);
  return value != nullptr ? *value : walk_.value(slots_[ordinal] + 1, contract_[ordinal].kind);
}

std::string_view Cursor::text(int ordinal) {
  const Value* value = kept(ordinal);
  if (contract_[ordinal].kind != Kind::Text) raise(TypeMismatch);
  return value != nullptr ? value->view() : walk_.text(slots_[ordinal] + 1);
}

bool Cursor::isYes(int ordinal) {
  const Value* value = kept(ordinal);
  if (value != nullptr || contract_[ordinal].kind != Kind::Flag)
    return value != nullptr && value->isYes();
  return walk_.integer(slots_[ordinal] + 1) != 0;
}

Value Cursor::fieldAfresh(int ordinal) {
  requireColumn(ordinal);
  requireRow();
  Statement now(*connection_,
                "SELECT " + sqlNames_[ordinal] + " FROM " + sqlName(table_) + " WHERE rowid = ?");
  now.bind(1, row_);
  if (!now.step()) raise(RecordDeleted);
  return now.value(0, contract_[ordinal].kind);
}

void Cursor::assign(int ordinal, const Value& value) {
  requireColumn(ordinal);
  if (pending_ == Pending::None) raise(NoEditPending);
  Value taken = stored(value, contract_[ordinal].kind);
  for (auto& [column, earlier] : assigned_) {
    if (column != ordinal) continue;
    earlier = std::move(taken);
    return;
  }
  assigned_.emplace_back(ordinal, std::move(taken));
}

void Cursor::addNew() {
  connection_->beforeWriting();
  release();
  assigned_.clear();
  pending_ = Pending::AddNew;
}

/// Lets go of the snapshot first: a change on top of an old one would collide with what another
/// program wrote in the meantime, and would keep the log from being emptied.
void Cursor::edit() {
  drop();
  requireRow();
  connection_->beforeWriting();
  refetch();
  requireRow();
  assigned_.clear();
  pending_ = Pending::Edit;
}

void Cursor::update() {
  if (pending_ == Pending::None) raise(NoEditPending);
  if (pending_ == Pending::AddNew)
    insertRow();
  else if (!assigned_.empty())
    updateRow();
  drop();
}

void Cursor::bindColumn(Statement& statement, int place, int ordinal, const Value& value) const {
  if (value.isNull())
    statement.bindNull(place);
  else if (contract_[ordinal].kind == Kind::Flag)
    statement.bind(place, value.isYes() ? 1 : 0);
  else
    statement.bindText(place, value.joined({}));
}

void Cursor::insertRow() {
  if (!insert_) {
    std::string columns;
    std::string places;
    for (const auto& name : sqlNames_) {
      columns += (columns.empty() ? "" : ", ") + name;
      places += places.empty() ? "?" : ", ?";
    }
    insert_ = Statement(*connection_, "INSERT INTO " + sqlName(table_) + " (" + columns +
                                          ") VALUES (" + places + ")");
  }
  const int columns = static_cast<int>(contract_.size());
  for (int ordinal = 0; ordinal < columns; ++ordinal) {
    const Value* value = assigned(ordinal);
    bindColumn(insert_, ordinal + 1, ordinal, value != nullptr ? *value : blank(ordinal));
  }
  insert_.run();
  if (connection_->rowsWritten() == 0) raiseBecause(InternalError, "the row was not stored");
  added(sqlite3_last_insert_rowid(connection_->handle()));
}

/// Writes only what was assigned, so that another program's change to the rest of the row stays.
void Cursor::updateRow() {
  prepareUpdate();
  int place = 0;
  for (const auto& [ordinal, value] : assigned_) bindColumn(update_, ++place, ordinal, value);
  update_.bind(++place, row_);
  update_.run();
  requireChanged();
  for (auto& [ordinal, value] : assigned_)
    if (slots_[ordinal] >= 0) values_[slots_[ordinal]] = std::move(value);
}

void Cursor::prepareUpdate() {
  const bool same = std::equal(assigned_.begin(), assigned_.end(), updates_.begin(), updates_.end(),
                               [](const auto& one, int other) { return one.first == other; });
  if (update_ && same) return;
  update_ = {};
  updates_.clear();
  std::string columns;
  for (const auto& [ordinal, value] : assigned_) {
    updates_.push_back(ordinal);
    columns += (columns.empty() ? "" : ", ") + sqlNames_[ordinal] + " = ?";
  }
  update_ =
      Statement(*connection_, "UPDATE " + sqlName(table_) + " SET " + columns + " WHERE rowid = ?");
}

void Cursor::remove() {
  drop();
  requireRow();
  connection_->beforeWriting();
  release();
  if (!remove_)
    remove_ = Statement(*connection_, "DELETE FROM " + sqlName(table_) + " WHERE rowid = ?");
  remove_.bind(1, row_);
  remove_.run();
  requireChanged();
  place_ = Place::Deleted;
  removed();
}

/// A change that touched no row: the row is gone, or something in the file keeps the change off.
void Cursor::requireChanged() {
  if (connection_->rowsWritten() > 0) return;
  Statement still(*connection_, "SELECT 1 FROM " + sqlName(table_) + " WHERE rowid = ?");
  still.bind(1, row_);
  if (still.step()) raiseBecause(InternalError, "the row was not changed");
  place_ = Place::Deleted;
  raise(RecordDeleted);
}

}  // namespace nautrel
