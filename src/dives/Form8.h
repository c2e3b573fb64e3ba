#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace nautrel {

class Nautrel;

/// "Sort logbook": keeps the stored order and gives the dives new numbers from a chosen one on.
class Form8 : public Form {
 public:
  using App = Nautrel;
  explicit Form8(Nautrel& app);

  void Form_Load() override;
  void Command1_Click();
  void Command2_Click();

  Frame Frame1{*this, "Frame1"};
  TextBox Text1{*this, "Text1", {.text = "1", .maxLength = 4}};
  SpinButton SpinButton1{*this, "SpinButton1"};
  Button Command1{*this, "Command1", "&Start"};
  Button Command2{*this, "Command2", "&Close"};

 private:
  int countDives();
  std::string comingNumbers() const;
  void renumberAll();

  Nautrel& app_;
};

}  // namespace nautrel
