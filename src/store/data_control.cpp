#include "store/data_control.h"

#include "platform/errors.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {

DataControl::DataControl(Form& form, std::string name, Workspace& workspace,
                         std::string recordSource)
    : Navigator(form, std::move(name)),
      workspace_(workspace),
      recordSource_(std::move(recordSource)) {}

class Recordset& DataControl::Recordset() {
  if (!recordset_) raise(ObjectNotSet);
  return *recordset_;
}

void DataControl::Refresh() {
  reader_.reset();
  recordset_.reset();
  recordset_ = workspace_.OpenDatabase(databaseName_).OpenDynaset(recordSource_);
  recordset_->moved = [this] { raiseEvent(Reposition); };
  if (!recordset_->Eof()) recordset_->MoveFirst();
  raiseEvent(Filled);
}

// The arrows stop at the ends; a press there shows the row afresh.
void DataControl::go(Arrow arrow) {
  auto& rows = Recordset();
  if (rows.RecordCount() == 0) return;
  switch (arrow) {
    case Arrow::First:
      return rows.MoveFirst();
    case Arrow::Last:
      return rows.MoveLast();
    case Arrow::Previous:
      return rows.Move(rows.AbsolutePosition() > 0 ? -1 : 0);
    case Arrow::Next:
      return rows.Move(rows.AbsolutePosition() + 1 < rows.RecordCount() ? 1 : 0);
  }
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
