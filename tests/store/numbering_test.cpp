// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/numbering.h"

#include "store/store_test.h"

namespace nautrel {
namespace {

class NumberingTest : public StoreTest {};

TEST_F(NumberingTest, NumbersInStoredOrderFromTheStart) {
  EXPECT_EQ(failureOf([&] { renumber(workspace, path, 1); }), NoCurrentRecord);
  for (const int number : {5, 5, 3, 900}) addDives(number, number);
  otherProgram("UPDATE Logbuch SET Nr = NULL WHERE Nr = '3'");
  renumber(workspace, path, 9998);
  EXPECT_EQ(numbers(), "9998,9999,10000,10001");
  const auto failing = [](int step, int) {
    if (step == 2) raise(InvalidPropertyValue);
  };
  EXPECT_EQ(failureOf([&] { renumber(workspace, path, 1, failing); }), InvalidPropertyValue);
  EXPECT_EQ(numbers(), "1,2,10000,10001") << "the rows before a failure keep their new numbers";
}

TEST_F(NumberingTest, AnotherProgramMayWriteInBetween) {
  addDives(11, 14);
  OtherProgram other(path);
  renumber(workspace, path, 1, [&](int step, int) {
    const char* const changes[] = {"", "UPDATE Logbuch SET Ort = 'Dahab'",
                                   "INSERT INTO Logbuch (Nr) VALUES ('15')"};
    if (step >= 3) return;
    EXPECT_EQ(other.run(changes[step]), "");
  });
  EXPECT_EQ(numbers(), "1,2,3,4,5");
  EXPECT_EQ(otherProgram("SELECT count(*) FROM Logbuch WHERE Ort = 'Dahab'"), "4");
}

}  // namespace
}  // namespace nautrel
