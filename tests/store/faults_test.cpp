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
