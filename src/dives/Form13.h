#pragma once

#include "platform/form.h"
#include "platform/grid.h"
#include "store/data_control.h"

namespace nautrel {

class Nautrel;

/// "Logbook Table": the whole logbook as one grid, under the names of its columns. The only window
/// inside the frame that the user can size.
class Form13 : public Form {
 public:
  using App = Nautrel;
  explicit Form13(Nautrel& app);

  void Form_Load() override;
  void Form_Resize() override;

  DataControl Data1;
  Grid MSFlexGrid1{*this, "MSFlexGrid1"};

 private:
  Nautrel& app_;
};

}  // namespace nautrel
