// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/transaction.h"

#include "store/store_test.h"
#include "support/windows.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

/// A logbook of dives 1 and 2, to which transactions want to add.
class TransactionTest : public StoreTest {
 protected:
  TransactionTest() { addDives(1, 2); }

  /// Large rows, so that the engine writes some of them ahead.
  static void add(Database& database, int first, int last) {
    auto dives = database.OpenRecordset(Tabelle::Logbuch);
    for (int number = first; number <= last; ++number) {
      dives.AddNew();
      dives.setField("Nr", number);
      dives.setField("Lang", std::string(20'000, 'l'));
      dives.Update();
    }
  }
  void expectAsBefore() {
    EXPECT_EQ(numbers(), "1,2");
    EXPECT_EQ(otherProgram("PRAGMA integrity_check"), "ok");
  }

  Database database = workspace.OpenDatabase(path);
};

TEST_F(TransactionTest, StoresTogetherAndAloneAgainAfterwards) {
  {
    Transaction all(database);
    auto dives = database.OpenDynaset(Tabelle::Logbuch);
    dives.Delete();
    add(database, 3, 4);
    workspace.settle();
    EXPECT_EQ(numbers(), "1,2");
    EXPECT_EQ(failureOf([&] { Transaction within(database); }), InternalError);
    all.commit();
    EXPECT_EQ(failureOf([&] { all.commit(); }), InternalError);
  }
  workspace.settle();
  EXPECT_EQ(fs::file_size(path + "-wal"), 0U);
  add(database, 5, 5);
  EXPECT_EQ(numbers(), "2,3,4,5");
}

TEST_F(TransactionTest, AFailingRowTakesEverythingBack) {
  for (const std::string_view how : {"ABORT", "ROLLBACK"}) {
    otherProgram(
        "CREATE TRIGGER off BEFORE INSERT ON Logbuch WHEN new.Nr = '150' BEGIN SELECT RAISE(" +
        std::string(how) + ", 'no more'); END");
    const int further = how == "ABORT" ? 0 : InternalError;  // the engine has ended it by itself
    {
      Transaction all(database);
      EXPECT_EQ(failureOf([&] { add(database, 3, 150); }), InternalError);
      EXPECT_EQ(failureOf([&] { add(database, 151, 151); }), further);
    }
    workspace.settle();
    expectAsBefore();
    otherProgram("DROP TRIGGER off");
  }
}

TEST_F(TransactionTest, BeginsOnlyWhereItMayWrite) {
  OtherProgram other(path);
  other.run("BEGIN IMMEDIATE");
  EXPECT_EQ(failureOf([&] { Transaction all(database); }), CouldNotLock);
  other.run("COMMIT");
}

TEST_F(TransactionTest, AFileExchangedMeanwhileGetsNothing) {
  NOT_ON_WINDOWS(kFileIsHeld);
  const auto aside = home.file("aside.mdb");
  const auto other = home.file("other.mdb");
  fs::copy_file(path, other);
  {
    Transaction all(database);
    add(database, 3, 150);
    fs::rename(path, aside);
    fs::rename(other, path);
    EXPECT_EQ(failureOf([&] { all.commit(); }), CannotOpenFile);
  }
  EXPECT_EQ(failureOf([&] { workspace.settle(); }), CannotOpenFile);
  expectAsBefore();
  EXPECT_EQ(OtherProgram(aside).run("SELECT Nr FROM Logbuch"), "1,2");
}

}  // namespace
}  // namespace nautrel
