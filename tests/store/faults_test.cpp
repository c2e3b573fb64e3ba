#include "store/store_test.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

class FaultsTest : public StoreTest {
 protected:
  int openingFails(const std::string& file) {
    return failureOf(
        [&] { workspace.OpenDatabase(file).OpenRecordset(Tabelle::Logbuch).RecordCount(); });
  }
};

TEST_F(FaultsTest, OpeningMakesNothingAndNamesTheFile) {
  const auto missing = home.file("Nothing.mdb");
  try {
    workspace.OpenDatabase(missing);
    FAIL() << "it opens";
  } catch (const RunTimeError& failure) {
    EXPECT_EQ(failure.number, DatabaseNotFound);
    EXPECT_EQ(failure.text, "Couldn't find file '" + missing + "'.");
  }
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

TEST_F(FaultsTest, ATableOrAColumnThatIsMissingFailsWhereItIsRead) {
  otherProgram("DROP TABLE Statistik");
  try {
    table(Tabelle::Statistik);
    FAIL() << "it opens";
  } catch (const RunTimeError& failure) {
    EXPECT_EQ(failure.text,
              "The database engine cannot find the input table or query 'Statistik'.");
  }
  otherProgram("ALTER TABLE Logbuch DROP COLUMN Grafik");
  addDives(1, 1);
  auto dives = table();
  EXPECT_EQ(number(dives), "1");
  EXPECT_EQ(failureOf([&] { dives.Fields(Feld::Grafik); }), ItemNotFound);
  EXPECT_EQ(failureOf([&] { dives.Fields("Grafik"); }), ItemNotFound);
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
    try {
      change();
      FAIL() << "it is done";
    } catch (const RunTimeError& failure) {
      EXPECT_EQ(failure.number, InternalError);
      EXPECT_EQ(failure.text, text);
    }
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
