// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/MDIForm1.h"
#include "app/Nautrel.h"
#include "shell/Modul1.h"
#include "support/scripted_desktop.h"
#include "support/user.h"

namespace nautrel {

/// A folder of its own for a test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::string& path() const { return path_; }
  /// The path of a file in it; the file is not made.
  std::string file(const std::string& name) const;
  /// Makes a file.
  std::string write(const std::string& name, const std::string& content) const;

 private:
  std::string path_;
};

std::string readFile(const std::string& path);

/// A dive by its columns; a column that is not named stays NULL, a flag that is not named No.
using Dive = std::map<std::string, Value>;
/// Dive with the given number, place and the five required columns filled.
Dive someDive(int number);

/// A program over a fresh logbook in a folder of its own, with a fixed clock and point locale. It
/// has no look; everything else is real.
class LogbookTest : public ::testing::Test {
 protected:
  LogbookTest();
  ~LogbookTest() override;

  /// Shows the splash, lets its timer fire, and leaves the main window open.
  void start();
  /// start(), without what it says, and a command of the main menu.
  void startAt(MenuItem MDIForm1::*command);
  /// Ends this run of the program and begins another over the same file.
  void restart();

  /// Appends a row of the dives, or of another table by its columns.
  void add(const Dive& dive, const std::string& table = "Logbuch");
  /// Dives first..last, made by someDive().
  void addDives(int first, int last);
  /// Another program deletes a row, the first one being 0.
  void deleteElsewhere(const std::string& table, int row);
  /// All rows as text, NULL as "NULL", flags as "Yes" and "No"; the named columns only.
  std::vector<std::vector<std::string>> rows(const std::string& table, const Columns& columns);
  /// One column of Logbuch.
  std::vector<std::string> column(const std::string& name);
  std::string status() { return app->MDIForm1().StatusBar1.panelText(3); }

  TemporaryFolder folder;
  std::unique_ptr<ScriptedDesktop> desktop;
  std::unique_ptr<Nautrel> app;
};

}  // namespace nautrel
