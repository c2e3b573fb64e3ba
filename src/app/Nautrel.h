// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "app/MDIForm1.h"
#include "shell/Shell.h"

namespace nautrel {

/// The program itself: makes the main window and all the others, and hands itself to them.
class Nautrel : public Shell {
 public:
  using Shell::Shell;
  ~Nautrel() override;

  /// Shows the splash, from which all the rest follows.
  void start();

  class MDIForm1& MDIForm1() override;
  class Form1& Form1();
  class Form2& Form2();
  class Form3& Form3();
  class Form4& Form4();
  class Form5& Form5();
  class Form6& Form6();
  class Form7& Form7();
  class Form8& Form8();
  class Form9& Form9();
  class Form10& Form10();
  class Form11& Form11();
  class Form12& Form12();
  class Form13& Form13();
  class Form14& Form14();
  class Form15& Form15();
  class Form16& Form16();
  class Form18& Form18();
  class Form19& Form19();
  class Form20& Form20();
  class Form21& Form21();
  class Form22& Form22();

  void show(int number) override;

 private:
  /// The files that nothing the user saves may replace.
  std::vector<std::string> ownFiles();
};

}  // namespace nautrel
