// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form5.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;
using Messages = std::vector<Shown>;

class DeleteDive : public LogbookTest {
 protected:
  Form5& open() {
    startAt(&MDIForm1::Menü2c);
    return app->Form5();
  }
  static void goTo(Form5& form, int rows) { form.Data1.Recordset().Move(rows); }
  static void enterRange(Form5& form, const std::string& first, const std::string& last) {
    choose(form.SSTab1, 1);
    clear(form.Text6);
    type(form.Text6, first);
    clear(form.Text7);
    type(form.Text7, last);
  }
};

TEST_F(DeleteDive, ShowsTheDiveInLockedBoxes) {
  auto dive = someDive(7);
  dive["Buddy"] = "Anna";
  dive["Platz"] = Value::null();
  add(dive);
  auto& form = open();
  type(form.Text2, "x");
  EXPECT_EQ((Texts{form.caption(), form.Text1.text(), form.Text2.text(), form.Text3.text(),
                   form.Text4.text(), form.Text5.text(), form.Text8.text()}),
            (Texts{"Delete dive", "7", "Land 7", "Ort 7", "", "05.03.2001", "Anna"}));
}

TEST_F(DeleteDive, AStartNumberIsGivenUpAndTheWindowStandsOnTheLastDive) {
  addDives(11, 17);
  auto& form = open();
  goTo(form, 2);
  desktop->answer(kYes);
  click(form.Command1);
  EXPECT_EQ(desktop->messages(),
            (Messages{{"Delete this dive?", 276, "Dive number 13 delete"}, {"Dive deleted"}}));
  EXPECT_EQ(column("Nr"), (Texts{"1", "2", "3", "4", "5", "6"}));
  EXPECT_EQ(column("Ort"), (Texts{"Ort 11", "Ort 12", "Ort 14", "Ort 15", "Ort 16", "Ort 17"}));
  EXPECT_EQ(form.Text3.text(), "Ort 17");
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 6 (1 to 6)");
}

// The window still holds the number that its row had before the others moved up, and the question
// names it; a jump counts from the new one.
TEST_F(DeleteDive, AfterADeletionTheRowOnShowKeepsItsNumberAndAJumpFindsItsDive) {
  addDives(1, 7);
  auto& form = open();
  goTo(form, 2);
  desktop->answer(kYes);
  click(form.Command1);
  desktop->messages();
  EXPECT_EQ(form.Text1.text(), "7");

  desktop->answer(kNo);
  click(form.Command1);
  EXPECT_EQ(desktop->messages(),
            (Messages{{"Delete this dive?", 276, "Dive number 7 delete"}, {"Aborted"}}));

  desktop->answerInput("3");
  click(form.Command2);
  EXPECT_EQ(desktop->inputPrompts.back(),
            "Jump to dive-#: Please enter a dive number between 1 and 6!");
  EXPECT_EQ(form.Text1.text(), "3");
  EXPECT_EQ(form.Text3.text(), "Ort 4");
}

TEST_F(DeleteDive, AJumpBeyondTheEndLeavesTheDiveThatShows) {
  for (const int number : {1, 2, 9}) add(someDive(number));
  auto& form = open();
  const auto jumpBeyond = [&] {
    press(form.Data1, Navigator::Arrow::First);
    press(form.Data1, Navigator::Arrow::Next);
    desktop->answerInput("8");
    click(form.Command2);
    EXPECT_EQ(form.Text1.text(), "2");
  };
  jumpBeyond();
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(form.Text1.text(), "9");
  jumpBeyond();
  desktop->answer(kYes);
  click(form.Command1);
  EXPECT_EQ(column("Ort"), (Texts{"Ort 1", "Ort 9"}));
}

TEST_F(DeleteDive, AnArrowFindsARowFromEverywhere) {
  using Arrow = Navigator::Arrow;
  addDives(1, 6);
  auto& form = open();
  const auto& shown = form.Text1.text();
  for (const auto arrow : {Arrow::Next, Arrow::Previous, Arrow::Last}) {
    while (!form.Data1.Recordset().Eof()) form.Data1.Recordset().MoveNext();
    press(form.Data1, arrow);
    EXPECT_EQ(shown, "6");
  }
  const auto deleted = [&](Arrow to, Arrow press1) {
    press(form.Data1, to);
    form.Data1.Recordset().Delete();
    press(form.Data1, press1);
    return shown;
  };
  EXPECT_EQ(deleted(Arrow::Last, Arrow::Next), "5") << "none followed";
  EXPECT_EQ(deleted(Arrow::First, Arrow::Next), "2");
  EXPECT_EQ(deleted(Arrow::First, Arrow::Previous), "3");
  EXPECT_EQ(deleted(Arrow::Previous, Arrow::First), "4");
}

TEST_F(DeleteDive, TheLastDiveTakesTheWindowAndTheCommandsWithIt) {
  addDives(4, 4);
  auto& form = open();
  desktop->answer(kYes);
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), (Texts{"Delete this dive?", "Dive deleted"}));
  EXPECT_FALSE(app->loaded(5));
  EXPECT_FALSE(app->MDIForm1().Menü2c.enabled());
  EXPECT_FALSE(app->MDIForm1().Toolbar1.buttons()[3].enabled);
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 0");
}

TEST_F(DeleteDive, ARangeGoesAndTheRestMovesUp) {
  addDives(1, 9);
  auto& form = open();
  enterRange(form, "3", "7");
  EXPECT_EQ(form.Label10.caption(), "max from dive-# 1 to # 9");
  desktop->answer(kYes);
  click(form.Command4);
  EXPECT_EQ(
      desktop->messages(),
      (Messages{{"Dive number 3 to 7 really delete?", 276, "Delete3 to 7"}, {"Dives deleted"}}));
  EXPECT_EQ(rows("Logbuch", {"Nr", "Ort"}),
            (std::vector<Texts>{{"1", "Ort 1"}, {"2", "Ort 2"}, {"3", "Ort 8"}, {"4", "Ort 9"}}));
  EXPECT_EQ(form.Label10.caption(), "max from dive-# 1 to # 4");
  EXPECT_EQ((Texts{form.Text6.text(), form.Text7.text(), form.Text3.text()}),
            (Texts{"3", "7", "Ort 9"}));
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 4 (1 to 4)");

  enterRange(form, "1", "4");
  desktop->answer(kYes);
  click(form.Command4);
  EXPECT_FALSE(app->loaded(5));
  EXPECT_FALSE(app->MDIForm1().Menü3a.enabled());
}

TEST_F(DeleteDive, AMissingNumberEndsTheProgramAndWhatWasDeletedStaysDeleted) {
  for (const int number : {1, 2, 4, 5}) add(someDive(number));
  auto& form = open();
  enterRange(form, "2", "3");
  desktop->answer(kYes);
  click(form.Command4);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
  EXPECT_EQ(column("Nr"), Texts{"1"});
}

TEST_F(DeleteDive, ADiveWithoutANumberIsNeitherEndOfARange) {
  for (const auto* number : {"1", "", "3", "", "5", ""}) {
    auto dive = someDive(1);
    dive["Nr"] = *number == '\0' ? Value::null() : Value(number);
    add(dive);
  }
  auto& form = open();
  enterRange(form, "3", "5");
  click(form.Command4);
  EXPECT_EQ(desktop->texts().size(), 2U) << "neither is valid";
  add({{"Nr", "7"}});
  enterRange(form, "3", "5");
  desktop->answer(kYes);
  click(form.Command4);
  EXPECT_EQ(rows("Logbuch", {"Nr", "Ort"}),
            (std::vector<Texts>{{"1", "Ort 1"}, {"2", "Ort 1"}, {"3", "Ort 1"}, {"4", "NULL"}}));
}

TEST_F(DeleteDive, EnterAndEscCloseFromEitherPage) {
  addDives(1, 2);
  start();
  for (const auto key : {Key::Enter, Key::Escape})
    for (const int page : {0, 1}) {
      click(app->MDIForm1().Menü2c);
      auto& form = app->Form5();
      choose(form.SSTab1, page);
      focus(page == 0 ? static_cast<Control&>(form.Text2) : form.Text6);
      press(form, key);
      EXPECT_FALSE(app->loaded(5));
    }
  EXPECT_EQ(column("Nr").size(), 2U);
}

TEST_F(DeleteDive, TheMarksOutOfReachAreOnAndWarnOfTheGap) {
  addDives(1, 3);
  auto& form = open();
  EXPECT_FALSE(form.Check1.shows() || form.Check2.shows());
  EXPECT_TRUE(form.Check1.on() && form.Check2.on());
  form.Check2.setOn(false);
  ASSERT_EQ(desktop->texts().size(), 1U);
  form.Check2.setOn(true);
  EXPECT_EQ(desktop->texts(), Texts{});
}

}  // namespace
}  // namespace nautrel
