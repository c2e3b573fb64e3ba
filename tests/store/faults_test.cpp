#include <fstream>
#include <iterator>

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

std::string contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(FaultsTest, OpeningMakesNothing) {
  const auto missing = folder / "Nothing.mdb";
  EXPECT_EQ(openingFails(missing.string()), DatabaseNotFound);
  EXPECT_FALSE(fs::exists(missing));
  EXPECT_EQ(openingFails((folder / "nowhere" / "Logbuch.mdb").string()), PathNotValid);
  EXPECT_FALSE(fs::exists(folder / "nowhere"));
  EXPECT_EQ(openingFails(folder.string()), CannotOpenFile);
}

TEST_F(FaultsTest, AFileThatIsNoLogbookStaysAsItIs) {
  const std::string cases[] = {"", "Dear diver", std::string(20'000, 'x'),
                               contents(path).substr(0, 50)};
  for (const auto& text : cases) {
    SCOPED_TRACE(text.substr(0, 10));
    const auto file = folder / "other.mdb";
    std::ofstream(file, std::ios::binary) << text;
    EXPECT_EQ(openingFails(file.string()), UnrecognizedFormat);
    EXPECT_EQ(contents(file), text);
  }
}

TEST_F(FaultsTest, ADamagedLogbookIsNoLogbook) {
  addDives(1, 500);
  workspace.settle();
  auto bytes = contents(path);
  std::fill(bytes.begin() + 4096, bytes.end(), '\xA5');
  std::ofstream(path, std::ios::binary) << bytes;
  EXPECT_EQ(openingFails(path), UnrecognizedFormat);
}

TEST_F(FaultsTest, MessagesNameTheFileAndTheTable) {
  const auto messageOf = [](auto&& action) -> std::string {
    try {
      action();
    } catch (const RunTimeError& failure) {
      return failure.text;
    }
    return {};
  };
  const auto missing = (folder / "Nothing.mdb").string();
  EXPECT_EQ(messageOf([&] { workspace.OpenDatabase(missing); }),
            "Couldn't find file '" + missing + "'.");
  otherProgram("DROP TABLE Statistik");
  EXPECT_EQ(messageOf([&] { table(Tabelle::Statistik); }),
            "The database engine cannot find the input table or query 'Statistik'.");
}

TEST_F(FaultsTest, ATableWithoutAColumnFailsWhereItIsRead) {
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
  workspace.settle();
  const auto copy = folder / "copy.mdb";
  fs::copy_file(path, copy);
  EXPECT_EQ(OtherProgram(copy.string()).run("SELECT Nr FROM Logbuch"), "1,2,3,4");
}

TEST_F(FaultsTest, AReaderOfOldRowsDoesNotKeepFromSettling) {
  addDives(1, 2);
  OtherProgram other(path);
  other.run("BEGIN");
  EXPECT_EQ(other.run("SELECT count(*) FROM Logbuch"), "2");
  addDives(3, 3);
  EXPECT_EQ(failureOf([&] { workspace.settle(); }), 0);
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
