// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/text.h"

namespace nautrel {

/// A chart of one series. Its rows count from 1 and hold the only copy of its data.
class Chart : public Control {
 public:
  enum Type { Bars3D = 0, Bars = 1, Line = 3, Area3D = 4 };
  struct Design {
    std::string categoryTitle = {};
    std::string valueTitle = {};
    std::vector<std::string> labels = {};
    Type type = Line;
  };
  struct Entry {
    std::string label;
    double value = 0;
  };
  Chart(Form& form, std::string name, Design design);

  const std::string& categoryTitle() const { return categoryTitle_; }
  const std::string& valueTitle() const { return valueTitle_; }
  const std::vector<Entry>& entries() const { return entries_; }

  /// Selects a row. Raises 380 if there is no such row.
  void setRow(int row);
  /// The selected row's text on the axis.
  void setRowLabel(std::string label);
  /// The selected row's value. Raises 13 for a text that is no number.
  void setData(std::string_view value);

  Type chartType() const { return type_; }
  void setChartType(Type type);
  /// Whether the user may turn the chart with the mouse.
  bool AllowDynamicRotation() const { return rotation_; }
  void setAllowDynamicRotation(bool allowed);

  /// Puts the picture and the data on the clipboard.
  void EditCopy() const;

 private:
  Entry& selected();

  std::string categoryTitle_;
  std::string valueTitle_;
  std::vector<Entry> entries_;
  Type type_;
  int row_ = 1;
  bool rotation_ = false;
};

}  // namespace nautrel
