// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>

#include "store/contract.h"
#include "store/database.h"
#include "store/delivered.h"
#include "support/failure.h"
#include "support/logbook.h"

namespace nautrel {

/// A connection as another program would hold it.
class OtherProgram {
 public:
  explicit OtherProgram(const std::string& path) {
    sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_timeout(handle_, 5000);
  }
  ~OtherProgram() { sqlite3_close(handle_); }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  /// Runs a statement; its rows' first columns, joined by commas.
  std::string run(const std::string& sql) {
    std::string answer;
    char* message = nullptr;
    const auto collect = [](void* all, int, char** values, char**) {
      auto& text = *static_cast<std::string*>(all);
      text += (text.empty() ? "" : ",") + std::string(values[0] != nullptr ? values[0] : "NULL");
      return 0;
    };
    if (sqlite3_exec(handle_, sql.c_str(), collect, &answer, &message) != SQLITE_OK)
      answer = std::string("error: ") + message;
    sqlite3_free(message);
    return answer;
  }

 private:
  sqlite3* handle_ = nullptr;
};

/// A fresh folder with a delivered logbook in it.
class StoreTest : public testing::Test {
 protected:
  StoreTest() { createDeliveredLogbook(path); }

  Recordset table(std::string_view name = Tabelle::Logbuch) {
    return workspace.OpenDatabase(path).OpenRecordset(name);
  }
  Recordset dynaset(std::string_view name = Tabelle::Logbuch) {
    return workspace.OpenDatabase(path).OpenDynaset(name);
  }
  std::string otherProgram(const std::string& sql) { return OtherProgram(path).run(sql); }

  void addDives(int first, int last) {
    for (auto dives = table(); first <= last; ++first) {
      dives.AddNew();
      dives.setField("Nr", first);
      dives.Update();
    }
    workspace.settle();
  }
  static std::string number(const Recordset& dives) { return dives.Fields(Feld::Nr).joined({}); }
  std::string numbers() { return otherProgram("SELECT Nr FROM Logbuch ORDER BY rowid"); }

  TemporaryFolder home;
  std::filesystem::path folder = home.path();
  std::string path = home.file(std::string(kLogbookFile));
  Workspace workspace;
};

}  // namespace nautrel
