// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form4.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class EditDives : public LogbookTest {
 protected:
  Form4& open() {
    startAt(&MDIForm1::Menü2b);
    return app->Form4();
  }
};

TEST_F(EditDives, OpensOnTheFirstDiveAndMakesALineInTheCommentsAlone) {
  addDives(5, 7);
  auto& form = open();
  EXPECT_EQ(form.caption(), "Edit dives - Number 5");
  EXPECT_EQ(form.activeControl(), &form.Text2);
  typeOn(form, "Malta");
  EXPECT_EQ(form.Text2.text(), "Malta");
  choose(form.SSTab1, 1);
  type(form.Text11, "a");
  press(form, Key::Enter);
  EXPECT_EQ(form.Text11.text(), "a\n");
  focus(form.Command4);
  EXPECT_TRUE(form.Command1.isDefault());
}

TEST_F(EditDives, ARowOfAnotherToolShowsThroughTheRulesOfTheBoxes) {
  addDives(1, 1);
  auto odd = someDive(2);
  odd["Zeit"] = "007";
  odd["Tiefe"] = "deep";
  odd["Land"] = Value::null();
  odd["Tag"] = "3";
  add(odd);
  auto& form = open();
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ((Texts{form.Text2.text(), form.Text3.text(), form.Text5.text(), form.Text9.text(),
                   form.Text10.text(), form.Text8.text()}),
            (Texts{"", "Ort 2", "3", "7", "", ""}));
  EXPECT_EQ(rows("Logbuch", {"Land", "Zeit", "Tiefe"}),
            (std::vector<Texts>{{"Land 1", "40", "60"}, {"NULL", "007", "deep"}}));
  type(form.Text10, "30");
  click(form.Command2);
  EXPECT_EQ(rows("Logbuch", {"Land", "Buddy", "Zeit", "Tiefe", "Tag"}).back(),
            (Texts{"", "", "7", "30", "3"}));
}

TEST_F(EditDives, AMoveThrowsAwayWhatWasTypedWithoutAQuestion) {
  addDives(1, 3);
  auto& form = open();
  type(form.Text2, "Egypt");
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(form.Text2.text(), "Land 2");
  EXPECT_EQ(form.caption(), "Edit dives - Number 2");
  press(form.Data1, Navigator::Arrow::Previous);
  EXPECT_EQ(form.Text2.text(), "Land 1");
  type(form.Text2, "Egypt");
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(4));
  EXPECT_EQ(column("Land"), (Texts{"Land 1", "Land 2", "Land 3"}));
}

TEST_F(EditDives, SavingWalksOnAndStaysOnTheLastDive) {
  addDives(9, 10);
  auto& form = open();
  typeOn(form, "Malta");
  press(form, Key::Enter);
  EXPECT_EQ(form.Text1.text(), "10");
  EXPECT_EQ(form.activeControl(), &form.Text2);
  typeOn(form, "Gozo");
  press(form, Key::Enter);
  EXPECT_EQ(form.Text1.text(), "10");
  EXPECT_EQ(form.Text2.text(), "Gozo");
  EXPECT_EQ(rows("Logbuch", {"Nr", "Land"}), (std::vector<Texts>{{"9", "Malta"}, {"10", "Gozo"}}));
}

TEST_F(EditDives, AnEmptyRequiredBoxKeepsTheWindowAndTheRow) {
  addDives(1, 2);
  auto& form = open();
  clear(form.Text10);
  for (auto* button : {&form.Command1, &form.Command2}) {
    click(*button);
    EXPECT_EQ(desktop->texts(), Texts{"Depth - could not be empty!"});
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(form.caption(), "Edit dives - Number 1");
  }
  EXPECT_EQ(column("Tiefe"), (Texts{"60", "60"}));
  type(form.Text10, "20");
  click(form.Command2);
  EXPECT_FALSE(app->loaded(4));
  EXPECT_EQ(column("Tiefe"), (Texts{"20", "60"}));
}

TEST_F(EditDives, TheLinkedPictureComesAndGoesWithItsDive) {
  auto linked = someDive(1);
  linked["Grafik"] = folder.write("reef.jpg", "picture");
  add(linked);
  auto gone = someDive(2);
  gone["Grafik"] = "gone.jpg";
  add(gone);
  auto& form = open();
  EXPECT_EQ(pathOf(form.Image4.picture()), folder.file("reef.jpg"));
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(pathOf(form.Image4.picture()), "");
  EXPECT_EQ(form.Text21.text(), "gone.jpg");
  click(form.Command1);
  EXPECT_EQ(column("Grafik").back(), "gone.jpg");
}

}  // namespace
}  // namespace nautrel
