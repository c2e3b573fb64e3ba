#include "store/data_control.h"

#include "platform/errors.h"

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
  recordset_.reset();
  recordset_ = workspace_.OpenDatabase(databaseName_).OpenDynaset(recordSource_);
  recordset_->moved = [this] { raiseEvent(Reposition); };
  if (!recordset_->Eof()) recordset_->MoveFirst();
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

}  // namespace nautrel
