// SPDX-License-Identifier: GPL-2.0-or-later
#include <functional>

#include "store/store_test.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

using Action = std::function<void()>;

class FaultsTest : public StoreTest {
 protected:
  /// What the failure says that the action raises.
  static std::string told(int number, const Action& action) {
    try {
      action();
    } catch (const RunTimeError& failure) {
      EXPECT_EQ(failure.number, number);
      return failure.text;
    }
    return "nothing";
  }
  int openingFails(const std::string& file) {
    return failureOf(
        [&] { workspace.OpenDatabase(file).OpenRecordset(Tabelle::Logbuch).RecordCount(); });
  }
};

TEST_F(FaultsTest, OpeningMakesNothingAndNamesTheFile) {
  const auto missing = home.file("Nothing.mdb");
  EXPECT_EQ(told(DatabaseNotFound, [&] { workspace.OpenDatabase(missing); }),
            "Couldn't find file '" + missing + "'.");
  EXPECT_EQ(openingFails(home.file("nowhere/Logbuch.mdb")), PathNotValid);
  EXPECT_EQ(openingFails(home.path()), CannotOpenFile);
  EXPECT_FALSE(fs::exists(missing) || fs::exists(folder / "nowhere"));
}

TEST_F(FaultsTest, AFileThatIsNoLogbookStaysAsItIs) {
  addDives(1, 500);
  auto damaged = readFile(path);
  std::fill(damaged.begin() + 4096, damaged.end(), '\xA5');
  for (const auto& text : {std::string(), std::string("Dear diver"), std::string(20'000, 'x'),
                           damaged.substr(0, 50), damaged}) {
    SCOPED_TRACE(text.size());
    const auto file = home.write("other.mdb", text);
    EXPECT_EQ(openingFails(file), UnrecognizedFormat);
    EXPECT_EQ(readFile(file), text);
  }
}

TEST_F(FaultsTest, TheLogOfADamagedFileStaysWithIt) {
  addDives(1, 500);
  const auto sound = readFile(path);
  auto dives = table();
  dives.AddNew();
  dives.Update();
  const auto log = readFile(path + "-wal");
  ASSERT_FALSE(log.empty());
  auto later = sound;
  std::fill(later.begin() + 8192, later.end(), '\xA5');
  for (const auto& damaged :
       {std::string(20'000, 'x'), std::string(), sound.substr(0, 50), later}) {
    SCOPED_TRACE(damaged.size());
    const auto file = home.write("other.mdb", damaged);
    home.write("other.mdb-wal", log);
    Workspace starting;
    failureOf([&] {
      for (auto rows = starting.OpenDatabase(file).OpenRecordset(Tabelle::Logbuch); !rows.Eof();)
        rows.MoveNext();
    });
    EXPECT_TRUE(readFile(file + "-wal") == log);
  }
}

TEST_F(FaultsTest, ATableThatIsMissingOrAColumnNotInItsPlaceIsNamedAndNothingIsWritten) {
  otherProgram("DROP TABLE Statistik");
  EXPECT_EQ(told(TableNotFound, [&] { table(Tabelle::Statistik); }),
            "The database engine cannot find the input table or query 'Statistik'.");
  const std::pair<const char*, const char*> cases[] = {
      {"ALTER TABLE Logbuch DROP COLUMN Grafik", "Grafik"},
      {"ALTER TABLE Logbuch RENAME COLUMN Ort TO Stadt", "Ort"},
      {"CREATE TABLE Neu AS SELECT Land, Nr, * FROM Logbuch; DROP TABLE Logbuch; "
       "ALTER TABLE Neu RENAME TO Logbuch",
       "Nr"}};
  addDives(1, 1);
  const auto sound = readFile(path);
  for (const auto& [change, column] : cases) {
    SCOPED_TRACE(change);
    home.write(std::string(kLogbookFile), sound);
    EXPECT_EQ(otherProgram(change), "");
    const auto before = readFile(path);
    const Action openings[] = {
        [&] { table(); }, [&] { dynaset(); },
        [&] { workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch, {"Land"}); }};
    for (const auto& open : openings)
      EXPECT_EQ(told(ItemNotFound, open),
                std::string("Item not found in this collection: '") + column + "'");
    EXPECT_TRUE(readFile(path) == before);
    EXPECT_EQ(table(Tabelle::Benutzer).RecordCount(), 1);
  }
}

TEST_F(FaultsTest, MoreColumnsOtherCasesAndOtherTypesAreReadAsIfTheyWereOurs) {
  otherProgram(
      "ALTER TABLE Logbuch RENAME COLUMN Höhe TO HÖHE; ALTER TABLE Logbuch RENAME COLUMN Nr TO nr;"
      "ALTER TABLE Logbuch ADD COLUMN Temperatur NOT NULL DEFAULT 4; CREATE TABLE More (a);"
      "PRAGMA application_id = 0; PRAGMA user_version = 0; PRAGMA writable_schema = ON;"
      "UPDATE sqlite_schema SET sql = replace(replace(replace(sql, 'BOOLEAN', 'NUMBER'),"
      "'\"Land\" TEXT', '\"Land\" BOOLEAN'), '\"Boot\" NUMBER', '\"Boot\"')");
  for (const bool fixed : {false, true}) {
    auto dives = fixed ? dynaset() : table();
    dives.AddNew();
    dives.setField("Land", "Egypt");
    dives.setField("Höhe", "12");
    dives.setField("Boot", true);
    dives.Update();
    dives.MoveLast();
    EXPECT_EQ(dives.FieldCount(), 30);
    EXPECT_EQ(dives.FieldName(Feld::Höhe), "Höhe");
    EXPECT_EQ(dives.Fields(Feld::Land), Value("Egypt"));
    EXPECT_EQ(dives.Fields(Feld::Höhe), Value("12"));
    EXPECT_EQ(dives.Fields(Feld::Boot), Value(true));
    EXPECT_EQ(dives.Fields(Feld::Rep), Value(false));
  }
  EXPECT_EQ(otherProgram("SELECT count(*) FROM Logbuch WHERE Temperatur = 4"), "2");
  EXPECT_EQ(failureOf([&] { table("More"); }), TableNotFound);
}

TEST_F(FaultsTest, AColumnThatGoesUnderAnOpenWindowShiftsNoOther) {
  addDives(1, 2);
  auto dives = dynaset();
  otherProgram("ALTER TABLE Logbuch DROP COLUMN Land");
  EXPECT_EQ(failureOf([&] { dives.MoveNext(); }), InternalError);
  EXPECT_EQ(number(dives), "1");
}

TEST_F(FaultsTest, ALockedRowKeepsWhatIsPendingForAnotherTry) {
  addDives(1, 1);
  OtherProgram other(path);
  auto dives = dynaset();
  dives.Edit();
  dives.setField("Ort", "Dahab");
  other.run("BEGIN IMMEDIATE");
  EXPECT_EQ(failureOf([&] { dives.Update(); }), CouldNotLock);
  other.run("COMMIT");
  dives.Update();
  EXPECT_EQ(other.run("SELECT Ort FROM Logbuch"), "Dahab");
}

TEST_F(FaultsTest, AChangeThatSomethingInTheFileKeepsOffIsNotTakenForDone) {
  struct Case {
    const char *when, *does, *text;
  };
  addDives(1, 1);
  for (const auto& [when, does, text] :
       {Case{"INSERT", "IGNORE", "Internal error: the row was not stored"},
        Case{"UPDATE", "IGNORE", "Internal error: the row was not changed"},
        Case{"DELETE", "IGNORE", "Internal error: the row was not changed"},
        Case{"INSERT", "ABORT, 'no more'", "Internal error: no more"},
        Case{"UPDATE", "FAIL, 'as it is'", "Internal error: as it is"},
        Case{"DELETE", "ROLLBACK, 'stay'", "Internal error: stay"}}) {
    SCOPED_TRACE(testing::Message() << when << ' ' << does);
    EXPECT_EQ(otherProgram(std::string("CREATE TRIGGER off BEFORE ") + when +
                           " ON Logbuch BEGIN SELECT RAISE(" + does + "); END"),
              "");
    auto dives = dynaset();
    const bool adding = std::string_view(when) == "INSERT";
    const auto change = [&] { *when == 'D' ? dives.Delete() : dives.Update(); };
    if (*when != 'D') {
      adding ? dives.AddNew() : dives.Edit();
      dives.setField("Nr", "2");
    }
    EXPECT_EQ(told(InternalError, change), text);
    EXPECT_EQ(numbers(), "1");
    otherProgram("DROP TRIGGER off");
    change();
    EXPECT_EQ(numbers(), adding ? "1,2" : *when == 'D' ? "" : "2");
    otherProgram("DELETE FROM Logbuch");
    addDives(1, 1);
  }
}

TEST_F(FaultsTest, WhatIsSettledStandsInTheOneFile) {
  addDives(1, 2);
  auto window = dynaset();
  addDives(3, 4);
  const auto copy = folder / "copy.mdb";
  fs::copy_file(path, copy);
  EXPECT_EQ(OtherProgram(copy.string()).run("SELECT Nr FROM Logbuch"), "1,2,3,4");
}

TEST_F(FaultsTest, AReaderOfOldRowsDoesNotKeepFromSettling) {
  addDives(1, 2);
  OtherProgram other(path);
  other.run("BEGIN");
  EXPECT_EQ(other.run("SELECT count(*) FROM Logbuch"), "2");
  EXPECT_EQ(failureOf([&] { addDives(3, 3); }), 0);
  EXPECT_EQ(other.run("SELECT count(*) FROM Logbuch"), "2");
  other.run("COMMIT");
  EXPECT_EQ(numbers(), "1,2,3");
}

TEST_F(FaultsTest, TheLogThatAnotherToolTookAwayComesBackWithAChangeOnly) {
  EXPECT_EQ(otherProgram("PRAGMA journal_mode = DELETE"), "delete");
  EXPECT_EQ(dynaset().RecordCount(), 0);
  EXPECT_EQ(otherProgram("PRAGMA journal_mode"), "delete");
  addDives(1, 1);
  EXPECT_EQ(otherProgram("PRAGMA journal_mode"), "wal");
}

}  // namespace
}  // namespace nautrel
