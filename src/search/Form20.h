// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/rich_text_box.h"
#include "search/TermSearchForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Full search": dives that have the term anywhere in their record, the flags by their words.
class Form20 : public TermSearchForm {
 public:
  static constexpr int kNumber = Windows::FullSearch;
  explicit Form20(Shell& app);

  void Command1_Click() override;
  void neue_Suche() override;

  CheckBox Check1{*this, "Check1", "only whole word"};
  RichTextBox RichTextBox1;

 private:
  void writeRecord(const Recordset& row);
};

}  // namespace nautrel
