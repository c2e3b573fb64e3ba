// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/store_test.h"

namespace nautrel {
namespace {

class DeliveredTest : public StoreTest {};

TEST_F(DeliveredTest, HoldsTheFourTablesAndTheirRows) {
  struct Case {
    std::string_view table;
    int columns;
    const char *first, *last;
    int rows;
  };
  const Case cases[] = {{Tabelle::Logbuch, 30, "Nr", "Grafik", 0},
                        {Tabelle::Benutzer, 16, "Vorname", "Weitere", 1},
                        {Tabelle::Ausrüstung, 9, "Gegenstand", "Preis", 0},
                        {Tabelle::Statistik, 19, "Zeit_ges", "Deco", 1}};
  for (const auto& item : cases) {
    SCOPED_TRACE(item.table);
    auto rows = table(item.table);
    EXPECT_EQ(rows.FieldCount(), item.columns);
    EXPECT_EQ(rows.FieldName(0), item.first);
    EXPECT_EQ(rows.FieldName(item.columns - 1), item.last);
    EXPECT_EQ(rows.RecordCount(), item.rows);
    for (int column = 0; item.rows > 0 && column < item.columns; ++column)
      EXPECT_EQ(rows.Fields(column), Value(""));
  }
  EXPECT_NE(otherProgram("PRAGMA application_id"), "0");
  EXPECT_EQ(otherProgram("PRAGMA user_version"), "1");
}

TEST_F(DeliveredTest, LeavesWhatIsThereAloneAndNothingElseBehind) {
  addDives(1, 1);
  EXPECT_FALSE(createDeliveredLogbook(path));
  EXPECT_EQ(numbers(), "1");
  EXPECT_EQ(failureOf([&] { createDeliveredLogbook(home.file("no/where")); }), PathNotValid);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
  const auto letter = home.write("letter", "Dear diver");
  EXPECT_FALSE(createDeliveredLogbook(letter));
  EXPECT_EQ(readFile(letter), "Dear diver");
  for (const char* side : {"-wal", "-journal"}) {
    const auto alone = home.write("gone.mdb" + std::string(side), "what a new one would be given");
    EXPECT_EQ(failureOf([&] { createDeliveredLogbook(home.file("gone.mdb")); }), CannotOpenFile);
    EXPECT_FALSE(std::filesystem::exists(home.file("gone.mdb")));
    std::filesystem::remove(alone);
  }
}

}  // namespace
}  // namespace nautrel
