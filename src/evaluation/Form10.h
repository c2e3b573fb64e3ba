// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "evaluation/GraphForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Graph years": the dives of the last ten years.
class Form10 : public GraphForm {
 public:
  static constexpr int kNumber = Windows::YearGraph;
  explicit Form10(Shell& app);

  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void Option4_Click();

  Frame Frame1{*this, "Frame1", "View"};
  OptionButton Option1{*this, "Option1", "&Line", true};
  OptionButton Option2{*this, "Option2", "3D &Area"};
  OptionButton Option3{*this, "Option3", "&3D Beam"};
  OptionButton Option4{*this, "Option4", "&Beam"};
  Frame Frame2{*this, "Frame2", "Info"};
  Label Label2{*this, "Label2", "Year of the last dive:"};
  Label Label1{*this, "Label1", "0"};
  Label Label3{*this, "Label3", "To rotate press Strg key and drag your mouse."};

 private:
  void fill() override;
  void showAs(Chart::Type type, bool turnable);
};

}  // namespace nautrel
