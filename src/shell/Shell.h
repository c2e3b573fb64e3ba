// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/program.h"
#include "shell/Modul1.h"
#include "shell/windows.h"
#include "store/database.h"

namespace nautrel {

class FrameForm;

/// The program as every window knows it: what all share, the logbook, the main window around them,
/// and the way to the others. Touching a window that is not loaded loads it.
class Shell : public Program {
 public:
  using Program::Program;

  class Modul1& Modul1() {
    return modul_;
  }
  virtual FrameForm& MDIForm1() = 0;
  /// Who reaches into another window knows its class.
  template <class Wanted>
  Wanted& window() {
    return Program::window<Wanted>(Wanted::kNumber, *this);
  }
  /// Loads and shows the window of that number.
  virtual void show(int number) = 0;

  Workspace& workspace() { return workspace_; }
  /// The application path and "\Logbuch.mdb", joined by the platform's own separator.
  std::string databasePath();
  Database openDatabase();
  Recordset openLogbook(const Columns& columns = {});
  /// A file delivered beside the executable.
  std::string besideExecutable(std::string_view fileName);

 private:
  void settle() override { workspace_.settle(); }

  Workspace workspace_;
  class Modul1 modul_ {
    *this
  };
};

}  // namespace nautrel
