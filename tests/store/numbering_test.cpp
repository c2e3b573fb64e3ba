#include "store/numbering.h"

#include "store/store_test.h"

namespace nautrel {
namespace {

class NumberingTest : public StoreTest {};

TEST_F(NumberingTest, NumbersInStoredOrderFromTheStart) {
  for (const int number : {5, 5, 3, 900}) addDives(number, number);
  otherProgram("UPDATE Logbuch SET Nr = NULL WHERE Nr = '3'");
  std::string told;
  renumber(workspace, path, 9998, [&](int step, int count) {
    told += std::to_string(step) + "/" + std::to_string(count) + " ";
  });
  EXPECT_EQ(numbers(), "9998,9999,10000,10001");
  EXPECT_EQ(told, "0/4 1/4 2/4 3/4 4/4 ");
  renumber(workspace, path, 1);
  EXPECT_EQ(numbers(), "1,2,3,4");
}

TEST_F(NumberingTest, AnEmptyLogbookHasNoFirstRow) {
  EXPECT_EQ(failureOf([&] { renumber(workspace, path, 1); }), NoCurrentRecord);
}

TEST_F(NumberingTest, AFailureLeavesTheRowsBeforeItRenumbered) {
  addDives(11, 14);
  EXPECT_EQ(failureOf([&] {
              renumber(workspace, path, 1, [](int step, int) {
                if (step == 2) raise(InvalidPropertyValue);
              });
            }),
            InvalidPropertyValue);
  EXPECT_EQ(numbers(), "1,2,13,14");
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
