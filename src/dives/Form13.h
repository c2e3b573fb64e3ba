// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/data_control.h"
#include "data/grid.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Logbook Table": the whole logbook as one grid, under the names of its columns. The only window
/// inside the frame that the user can size.
class Form13 : public Form {
 public:
  static constexpr int kNumber = Windows::LogbookTable;
  explicit Form13(Shell& app);

  void Form_Load() override;
  void Form_Resize() override;

  DataControl Data1;
  Grid MSFlexGrid1{*this, "MSFlexGrid1"};

 private:
  Shell& app_;
};

}  // namespace nautrel
