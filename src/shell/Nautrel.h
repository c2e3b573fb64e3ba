#pragma once

#include <memory>
#include <string>

#include "platform/program.h"
#include "store/database.h"

namespace nautrel {

class Form1;
class Form2;
class Form3;
class Form4;
class Form5;
class Form6;
class Form7;
class Form8;
class Form9;
class Form10;
class Form11;
class Form12;
class Form13;
class Form14;
class Form15;
class Form16;
class Form18;
class Form19;
class Form20;
class Form21;
class Form22;
class MDIForm1;
class Modul1;

/// The program itself: owns the shared state, the main window and all the others, and hands itself
/// to them. Touching a window that is not loaded loads it.
class Nautrel : public Program {
 public:
  explicit Nautrel(Desktop& desktop);
  ~Nautrel() override;

  /// Shows the splash, from which all the rest follows.
  void start();

  class Modul1& Modul1() {
    return *modul_;
  }
  class MDIForm1& MDIForm1();
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

  /// Loads and shows the child window of that number.
  void show(int number);

  Workspace& workspace() { return workspace_; }
  /// The application path and "\Logbuch.mdb", joined by the platform's own separator.
  std::string databasePath();
  /// A file delivered beside the executable.
  std::string besideExecutable(const std::string& fileName);

 private:
  void settle() override { workspace_.settle(); }
  /// The files that nothing the user saves may replace.
  std::vector<std::string> ownFiles();

  Workspace workspace_;
  std::unique_ptr<class Modul1> modul_;
};

}  // namespace nautrel
