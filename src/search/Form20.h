#pragma once

#include "search/RichTextBox.h"
#include "search/TermSearchForm.h"

namespace nautrel {

/// "Full search": dives that have the term anywhere in their record, the flags by their words.
class Form20 : public TermSearchForm {
 public:
  using App = Nautrel;
  explicit Form20(Nautrel& app);

  void Command1_Click() override;
  void neue_Suche() override;

  CheckBox Check1{*this, "Check1", "only whole word"};
  RichTextBox RichTextBox1;

 private:
  void writeRecord(const Recordset& row);
};

}  // namespace nautrel
