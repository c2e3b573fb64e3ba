#include "store/cursor.h"

#include <algorithm>

#include "platform/errors.h"

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
  prepareWalk("*");
  readShape();
  if (!columns.empty()) narrowWalk(columns);
  values_.resize(ordinals_.size());
}

void Cursor::requireTable() const {
  const int code =
      sqlite3_table_column_metadata(connection_->handle(), "main", table_.c_str(), nullptr, nullptr,
                                    nullptr, nullptr, nullptr, nullptr);
  if (code == SQLITE_ERROR) raise(TableNotFound, table_);
  if (code != SQLITE_OK) connection_->raiseFailure(code);
}

void Cursor::prepareWalk(const std::string& columns) {
  walk_ = Statement(*connection_, "SELECT rowid, " + columns + " FROM " + sqlName(table_) +
                                      " WHERE rowid >= ?1 ORDER BY rowid");
}

void Cursor::readShape() {
  for (int column = 1; column < walk_.columnCount(); ++column) {
    names_.push_back(walk_.columnName(column));
    kinds_.push_back(walk_.columnKind(column));
    ordinals_.push_back(column - 1);
  }
  slots_ = ordinals_;
}

void Cursor::narrowWalk(const std::vector<std::string>& columns) {
  ordinals_.clear();
  slots_.assign(names_.size(), -1);
  std::string list;
  for (const auto& name : columns) {
    const int ordinal = ordinalOf(name);
    slots_[ordinal] = static_cast<int>(ordinals_.size());
    ordinals_.push_back(ordinal);
    list += (list.empty() ? "" : ", ") + sqlName(name);
  }
  prepareWalk(list);
}

bool Cursor::seek(std::int64_t from) {
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
    values_[slot] = walk_.value(static_cast<int>(slot) + 1, kinds_[ordinals_[slot]]);
  walk_.reset();
  live_ = false;
}

int Cursor::ordinalOf(std::string_view name) const {
  const auto found = std::find(names_.begin(), names_.end(), name);
  if (found == names_.end()) raise(ItemNotFound);
  return static_cast<int>(found - names_.begin());
}

void Cursor::requireColumn(int ordinal) const {
  if (ordinal < 0 || ordinal >= static_cast<int>(names_.size())) raise(ItemNotFound);
}

void Cursor::requireRow() const {
  if (place_ == Place::Deleted) raise(RecordDeleted);
  if (place_ != Place::Row) raise(NoCurrentRecord);
}

const Value* Cursor::assigned(int ordinal) const {
  for (const auto& [column, value] : assigned_)
    if (column == ordinal) return &value;
  return nullptr;
}

Value Cursor::blank(int ordinal) const {
  return kinds_[ordinal] == Kind::Flag ? Value(false) : Value::null();
}

Value Cursor::field(int ordinal) const {
  requireColumn(ordinal);
  if (pending_ != Pending::None) {
    if (const Value* value = assigned(ordinal)) return *value;
    if (pending_ == Pending::AddNew) return blank(ordinal);
  }
  requireRow();
  const int slot = slots_[ordinal];
  if (slot < 0) raise(ItemNotFound);
  return live_ ? walk_.value(slot + 1, kinds_[ordinal]) : values_[slot];
}

void Cursor::appendField(std::string& text, int ordinal) const {
  requireColumn(ordinal);
  const int slot = slots_[ordinal];
  if (live_ && pending_ == Pending::None && slot >= 0 && kinds_[ordinal] == Kind::Text)
    text += walk_.text(slot + 1);
  else
    text += field(ordinal).joined({});
}

void Cursor::assign(int ordinal, const Value& value) {
  requireColumn(ordinal);
  if (pending_ == Pending::None) raise(NoEditPending);
  Value taken = stored(value, kinds_[ordinal]);
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
  else if (kinds_[ordinal] == Kind::Flag)
    statement.bind(place, value.isYes() ? 1 : 0);
  else
    statement.bindText(place, value.joined({}));
}

void Cursor::insertRow() {
  if (!insert_) {
    std::string columns;
    std::string places;
    for (const auto& name : names_) {
      columns += (columns.empty() ? "" : ", ") + sqlName(name);
      places += places.empty() ? "?" : ", ?";
    }
    insert_ = Statement(*connection_, "INSERT INTO " + sqlName(table_) + " (" + columns +
                                          ") VALUES (" + places + ")");
  }
  const int columns = static_cast<int>(names_.size());
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
    columns += (columns.empty() ? "" : ", ") + sqlName(names_[ordinal]) + " = ?";
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
