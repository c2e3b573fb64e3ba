// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form13.h"

#include "store/contract.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class LogbookTable : public LogbookTest {
 protected:
  Form13& open() {
    startAt(&MDIForm1::Menü3d);
    return app->Form13();
  }
};

TEST_F(LogbookTable, ShowsEveryColumnUnderItsRawName) {
  auto dive = someDive(1);
  dive["Lang"] = "one\nand another";
  dive["Boot"] = true;
  add(dive);
  addDives(2, 3);
  auto& grid = open().MSFlexGrid1;
  const auto& columns = logbookTables().front().columns;
  EXPECT_EQ(grid.headings(), Texts([&] {
              Texts names;
              for (const auto& column : columns) names.emplace_back(column.name);
              return names;
            }()));
  ASSERT_EQ(grid.rowCount(), 3);
  EXPECT_EQ(grid.row(2)[Feld::Ort], "Ort 3");
  EXPECT_EQ(grid.row(0)[Feld::Lang], "one\nand another");
  EXPECT_EQ((Texts{grid.row(0)[Feld::Boot], grid.row(0)[Feld::Ufer], grid.row(0)[Feld::Buddy]}),
            (Texts{"True", "False", ""}));
}

TEST_F(LogbookTable, LookingAtItMovesNoRowAndOneThatIsGoneIsEmpty) {
  addDives(1, 5);
  auto& form = open();
  int moves = 0;
  form.Data1.Reposition = [&] { ++moves; };
  EXPECT_EQ(form.MSFlexGrid1.row(4)[Feld::Ort], "Ort 5");
  deleteElsewhere("Logbuch", 1);
  EXPECT_EQ(form.MSFlexGrid1.row(1)[Feld::Ort], "");
  EXPECT_EQ(form.MSFlexGrid1.row(2)[Feld::Ort], "Ort 3");
  EXPECT_EQ(moves, 0);
  EXPECT_EQ(form.Data1.Recordset().AbsolutePosition(), 0);
}

TEST_F(LogbookTable, TheGridFollowsTheWindowAndAMinimizedOneIsIgnored) {
  addDives(1, 1);
  auto& form = open();
  for (const auto& [width, height] : {std::pair{9000, 6000}, {100, 300}}) {
    form.userResized(0, 0, width, height);
    EXPECT_EQ(form.MSFlexGrid1.Width(), 8860);
    EXPECT_EQ(form.MSFlexGrid1.Height(), 5600);
  }
}

}  // namespace
}  // namespace nautrel
