// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <optional>

#include "platform/value.h"
#include "search/SearchForm.h"
#include "shell/windows.h"

namespace nautrel {

/// "Search a number": dives whose numbers equal a text, or are less or more than a number; or the
/// dives of one day.
class Form14 : public SearchForm {
 public:
  static constexpr int kNumber = Windows::SearchNumber;
  explicit Form14(Shell& app);

  void Command1_Click() override;
  void Check6_Click();
  /// Text against text: the first column that equals the text decides, by its box.
  void Gleich();
  /// Number against number: any checked column that passes makes a hit.
  /// @{
  void Kleiner();
  void Größer();
  /// @}

  TextBox Text4{*this, "Text4"};
  OptionButton Option4{*this, "Option4", "less (<)"};
  OptionButton Option5{*this, "Option5", "equal  (=)", true};
  OptionButton Option6{*this, "Option6", "more (>)"};
  Frame Frame4{*this, "Frame4", "Search in:"};
  CheckBox Check1{*this, "Check1", "&Time", true};
  CheckBox Check2{*this, "Check2", "Depth", true};
  CheckBox Check3{*this, "Check3", "Day", true};
  CheckBox Check4{*this, "Check4", "Month", true};
  CheckBox Check5{*this, "Check5", "Year", true};
  CheckBox Check6{*this, "Check6", "Date(DD.MM.YYYY)"};
  CheckBox Check7{*this, "Check7", "Psi start"};
  CheckBox Check8{*this, "Check8", "Psi end"};
  CheckBox Check9{*this, "Check9", "Tank size"};
  CheckBox Check10{*this, "Check10", "Altitude"};
  CheckBox Check11{*this, "Check11", "Weight"};

 private:
  using Comparison = std::function<bool(double wanted, double stored)>;

  void search(const RowTest& isHit, const std::string& prefix);
  RowTest anyColumn(const Comparison& passes) const;
  std::optional<Value> read(const Recordset& row, int ordinal) const;
  void clearTerm() override;
  Control& termBox() override { return Text4; }
};

}  // namespace nautrel
