// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_control.h"

#include "platform/errors.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {

DataControl::DataControl(Form& form, std::string name, Workspace& workspace,
                         std::string_view recordSource)
    : Navigator(form, std::move(name)), workspace_(workspace), recordSource_(recordSource) {}

class Recordset& DataControl::Recordset() {
  if (!recordset_) raise(ObjectNotSet);
  return *recordset_;
}

void DataControl::Refresh() {
  auto opened = workspace_.OpenDatabase(databaseName_).OpenDynaset(recordSource_);
  reader_.reset();
  recordset_ = std::move(opened);
  recordset_->moved = [this] { raiseEvent(Reposition); };
  if (!recordset_->Eof()) recordset_->MoveFirst();
  raiseEvent(Filled);
}

// The arrows stop at the ends; a press there shows the row afresh.
void DataControl::go(Arrow arrow) {
  auto& rows = Recordset();
  const int count = rows.RecordCount();
  const int position = rows.AbsolutePosition();
  if (count == 0) return;
  if (arrow == Arrow::First) return rows.MoveFirst();
  if (arrow == Arrow::Last) return rows.MoveLast();
  if (position < 0) return toNearestRow();
  if (arrow == Arrow::Previous) return rows.Move(position > 0 ? -1 : 0);
  rows.Move(position + 1 < count ? 1 : 0);
}

/// From a deleted row to the one that followed; from behind the last row back onto it.
void DataControl::toNearestRow() {
  auto& rows = Recordset();
  if (!rows.Eof()) rows.MoveNext();
  if (rows.Eof()) rows.MoveLast();
}

class Recordset& DataControl::reader() {
  if (!reader_) reader_ = workspace_.OpenDatabase(databaseName_).OpenDynaset(recordSource_);
  return *reader_;
}

std::vector<std::string> DataControl::headings() {
  std::vector<std::string> names;
  for (int ordinal = 0; ordinal < reader().FieldCount(); ++ordinal)
    names.push_back(reader().FieldName(ordinal));
  return names;
}

int DataControl::rowCount() {
  return reader().RecordCount();
}

std::vector<std::string> DataControl::row(int index) {
  reader().Move(index - reader().AbsolutePosition());
  const auto& locale = form().program().desktop().locale();
  std::vector<std::string> cells;
  for (int ordinal = 0; ordinal < reader().FieldCount(); ++ordinal)
    cells.push_back(reader().Fields(ordinal).joined(locale));
  return cells;
}

}  // namespace nautrel
