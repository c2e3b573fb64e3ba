// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"
#include "store/database.h"

namespace nautrel {

class Shell;

/// "found dives:": the hits of a search beside the record window. A click on a line moves that
/// window to the dive. The search fills, sizes and places it.
class Form19 : public Form {
 public:
  static constexpr int kNumber = Windows::FoundDives;
  explicit Form19(Shell& app);

  /// The width of the list in twips; the window's title needs it.
  static constexpr double kListWidth = 2000;

  void Form_Load() override;
  void List1_Click();
  void Anzeigen();
  void Bearbeiten();
  void Löschen();

  ListBox List1{*this, "List1"};
  /// The record window in use.
  static constexpr const char* kViewing = "anzeigen";
  static constexpr const char* kEditing = "bearbeiten";
  static constexpr const char* kDeleting = "löschen";
  TextBox Text1{*this, "Text1", {.visible = false}};

 private:
  template <class RecordForm>
  void jump(RecordForm& record);

  Shell& app_;
};

}  // namespace nautrel
