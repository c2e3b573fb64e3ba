#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace nautrel {

class Nautrel;

/// The splash: a picture for 800 milliseconds, then the main window.
class Form1 : public Form {
 public:
  using App = Nautrel;
  explicit Form1(Nautrel& app);

  Timer Timer1{*this, "Timer1", 800};

  void Form_Load() override;
  void Timer1_Timer();

 private:
  Nautrel& app_;
};

}  // namespace nautrel
