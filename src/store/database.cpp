// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/database.h"

#include <utility>

#include "platform/errors.h"
#include "store/connection.h"
#include "store/dynaset.h"
#include "store/table_cursor.h"

namespace nautrel {

Workspace::Workspace(Use use)
    : unsettled_(std::make_shared<std::vector<std::shared_ptr<Connection>>>()), use_(use) {}

Workspace::~Workspace() = default;

/// A change that waits in the log of a file which is no longer there must not be taken for one of
/// the file that is.
Database Workspace::OpenDatabase(const std::string& path) {
  if (use_ == Use::Look) return Database(std::make_shared<Connection>(Connection::toRead(path)));
  for (const auto& connection : *unsettled_)
    if (connection->path() == path) connection->requireSameFile();
  return Database(std::make_shared<Connection>(path, unsettled_));
}

/// What fails stays unsettled: a failure that a rule has passed over comes again at the end of the
/// action.
void Workspace::settle() {
  for (const auto& connection : *unsettled_) connection->requireSameFile();
  for (; !unsettled_->empty(); unsettled_->pop_back()) unsettled_->back()->checkpoint();
}

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

Recordset Database::OpenRecordset(std::string_view table, const Columns& columns) {
  return Recordset(std::make_unique<TableCursor>(connection_, table, columns));
}

Recordset Database::OpenDynaset(std::string_view table) {
  return Recordset(std::make_unique<Dynaset>(connection_, table));
}

Recordset::Recordset(std::unique_ptr<Cursor> cursor) : cursor_(std::move(cursor)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

Cursor& Recordset::cursor() const {
  if (!cursor_) raise(ObjectNotSet);
  return *cursor_;
}

/// The handler may well replace this recordset: nothing of it is touched afterwards.
void Recordset::raiseMoved() {
  if (const auto handler = moved) handler();
}

int Recordset::RecordCount() const {
  return cursor().count();
}

bool Recordset::Eof() const {
  return cursor().atEnd();
}

int Recordset::AbsolutePosition() const {
  return cursor().position();
}

void Recordset::MoveFirst() {
  cursor().first();
  raiseMoved();
}

void Recordset::MoveLast() {
  cursor().last();
  raiseMoved();
}

void Recordset::MoveNext() {
  cursor().next();
  if (!Eof()) raiseMoved();
}

void Recordset::Move(int rows) {
  cursor().move(rows);
  raiseMoved();
}

Value Recordset::Fields(int ordinal) const {
  return cursor().field(ordinal);
}

Value Recordset::Fields(std::string_view name) const {
  return cursor().field(cursor().ordinalOf(name));
}

std::string_view Recordset::fieldText(int ordinal) const {
  return cursor().text(ordinal);
}

bool Recordset::fieldIsYes(int ordinal) const {
  return cursor().isYes(ordinal);
}

Value Recordset::FieldAfresh(int ordinal) const {
  return cursor().fieldAfresh(ordinal);
}

void Recordset::setField(int ordinal, const Value& value) {
  cursor().assign(ordinal, value);
}

void Recordset::setField(std::string_view name, const Value& value) {
  cursor().assign(cursor().ordinalOf(name), value);
}

void Recordset::AddNew() {
  cursor().addNew();
}

void Recordset::Edit() {
  cursor().edit();
}

void Recordset::Update() {
  cursor().update();
}

void Recordset::Delete() {
  cursor().remove();
}

void Recordset::Close() {
  cursor_.reset();
}

int Recordset::FieldCount() const {
  return static_cast<int>(cursor().columns().size());
}

std::string Recordset::FieldName(int ordinal) const {
  if (ordinal < 0 || ordinal >= FieldCount()) raise(ItemNotFound);
  return std::string(cursor().columns()[static_cast<std::size_t>(ordinal)].name);
}

}  // namespace nautrel
