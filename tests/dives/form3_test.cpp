#include "dives/Form3.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Arrow = Navigator::Arrow;
using Texts = std::vector<std::string>;

class ViewLogbook : public LogbookTest {
 protected:
  Form3& open() {
    start();
    click(app->MDIForm1().Menü3a);
    return app->Form3();
  }
  Form3& openWith(const Dive& dive) {
    add(dive);
    return open();
  }
};

TEST_F(ViewLogbook, OpensOnTheFirstDiveWithItsLineChosen) {
  addDives(1, 3);
  auto& form = open();
  EXPECT_EQ(form.caption(), "View Logbook (Dives 1 to 3) - # 1");
  EXPECT_EQ(form.List1.lines(), (Texts{"1", "2", "3"}));
  EXPECT_EQ(form.List1.ListIndex(), 0);
  EXPECT_EQ(form.Text5.text(), "05.03.2001");
  type(form.Text2, "x");
  EXPECT_EQ(form.Text2.text(), "Land 1");
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(3));
}

TEST_F(ViewLogbook, TheListFollowsTheNavigatorAndLeadsTheRecord) {
  addDives(301, 310);
  auto& form = open();
  const std::pair<Arrow, const char*> presses[] = {{Arrow::Next, "302"},  {Arrow::Last, "310"},
                                                   {Arrow::Next, "310"},  {Arrow::Previous, "309"},
                                                   {Arrow::First, "301"}, {Arrow::Previous, "301"}};
  for (const auto& [arrow, number] : presses) {
    press(form.Data1, arrow);
    EXPECT_EQ(form.Text1.text(), number);
    EXPECT_EQ(form.List1.text(), number);
  }
  click(form.List1, 4);
  EXPECT_EQ(form.Text1.text(), "305");
  click(form.List1, 9);
  EXPECT_EQ(form.Text1.text(), "310");
  EXPECT_EQ(form.caption(), "View Logbook (Dives 301 to 310) - # 310");
}

struct JumpCase {
  int first;
  const char* answer;
  const char* shown;
  const char* line;
};

class Jump : public ViewLogbook, public ::testing::WithParamInterface<JumpCase> {};

TEST_P(Jump, MovesInsideTheRangeAndSaysNothing) {
  addDives(GetParam().first, GetParam().first + 9);
  auto& form = open();
  press(form.Data1, Arrow::Next);
  desktop->answerInput(GetParam().answer);
  click(form.Command1);
  EXPECT_EQ(form.Text1.text(), GetParam().shown);
  EXPECT_EQ(form.List1.text(), GetParam().line);
  EXPECT_EQ(desktop->texts(), Texts{});
}

// Numbered from elsewhere than 1 the list does not follow.
INSTANTIATE_TEST_SUITE_P(Answers, Jump,
                         ::testing::Values(JumpCase{1, "7", "7", "7"},
                                           JumpCase{1, "10", "10", "10"}, JumpCase{1, "", "2", "2"},
                                           JumpCase{1, "abc", "2", "2"}, JumpCase{1, "0", "2", "2"},
                                           JumpCase{1, "11", "2", "2"},
                                           JumpCase{301, "305", "305", "302"},
                                           JumpCase{301, "310", "310", "302"}));

TEST_F(ViewLogbook, TheJumpNamesTheRange) {
  addDives(5, 8);
  auto& form = open();
  desktop->answerInput("");
  click(form.Command1);
  EXPECT_EQ(desktop->inputPrompts,
            Texts{"Jump to dive-#: Please enter a dive number between 5 and 8!"});
}

TEST_F(ViewLogbook, NullColumnsLeaveTheirBoxesEmptyAndTheRestIsShown) {
  auto& form = openWith({{"Nr", "1"}, {"Tag", "1"}, {"Ort", "Dahab"}, {"Blei", "12"}});
  EXPECT_EQ(form.Text2.text(), "");
  EXPECT_EQ(form.Text3.text(), "Dahab");
  EXPECT_EQ(form.Text5.text(), "1..");
  EXPECT_EQ(form.Text19.text(), "12");
}

TEST_F(ViewLogbook, FlagsShowTheirWordsAndOfAPairTheSecondWins) {
  auto& form = openWith({{"Nr", "1"},
                         {"Salz", true},
                         {"Süß", true},
                         {"Boot", true},
                         {"Deco", true},
                         {"Alu", true},
                         {"Rep", true},
                         {"Sichtm", true}});
  EXPECT_EQ((Texts{form.Label21.caption(), form.Label24.caption(), form.Label25.caption(),
                   form.Label11.caption(), form.Label30.caption()}),
            (Texts{"Sweet water", "from boat", "Deco-stop", "Aluminum", "Rep.-dive"}));
  EXPECT_TRUE(form.Image2.visible());
  EXPECT_FALSE(form.Image1.visible() || form.Image3.visible());
}

TEST_F(ViewLogbook, EveryColumnReachesItsBox) {
  auto& form = openWith({{"Nr", "4"},
                         {"Land", "L"},
                         {"Ort", "O"},
                         {"Platz", "P"},
                         {"Zeit", "44"},
                         {"Tiefe", "88"},
                         {"Buddy", "B"},
                         {"Lang", "C"},
                         {"Liter", "80"},
                         {"Bars", "300"},
                         {"Bare", "50"},
                         {"Wetter", "W"},
                         {"Anzug", "A"},
                         {"Höhe", "H"},
                         {"Blei", "9"},
                         {"Grafik", "none"}});
  Texts shown;
  for (const auto* box :
       {&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text9, &form.Text10, &form.Text8,
        &form.Text11, &form.Text17, &form.Text13, &form.Text18, &form.Text14, &form.Text15,
        &form.Text16, &form.Text19, &form.Text12})
    shown.push_back(box->text());
  EXPECT_EQ(shown, (Texts{"4", "L", "O", "P", "44", "88", "B", "C", "80", "300", "50", "W", "A",
                          "H", "9", "none"}));
}

TEST_F(ViewLogbook, APictureThatIsGoneOrRubbishLeavesNoneOnShow) {
  const auto picture = folder.write("reef.jpg", "picture");
  add({{"Nr", "1"}, {"Grafik", picture}});
  add({{"Nr", "2"}, {"Grafik", folder.file("gone.jpg")}});
  add({{"Nr", "3"}, {"Grafik", folder.write("rubbish.jpg", "x")}});
  auto& form = open();
  EXPECT_EQ(pathOf(form.Image4.picture()), picture);
  for (int dive = 2; dive <= 3; ++dive) {
    press(form.Data1, Arrow::Next);
    EXPECT_EQ(form.Image4.picture(), nullptr);
    EXPECT_FALSE(form.Text12.isEmpty());
  }
  EXPECT_EQ(desktop->texts(), Texts{});
}

TEST_F(ViewLogbook, ADiveChangedElsewhereShowsAtTheNextMoveAndAnAddedOneAfterReopening) {
  addDives(1, 3);
  auto& form = open();
  Workspace other;
  {
    auto others = other.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset("Logbuch");
    others.MoveNext();
    others.Edit();
    others.setField("Land", "Malta");
    others.Update();
  }
  addDives(4, 4);
  press(form.Data1, Arrow::Next);
  EXPECT_EQ(form.Text2.text(), "Malta");
  press(form.Data1, Arrow::Last);
  EXPECT_EQ(form.Text1.text(), "3");
  click(app->MDIForm1().Menü2a);
  EXPECT_FALSE(app->loaded(3));
  click(app->MDIForm1().Menü3a);
  EXPECT_EQ(app->Form3().List1.ListCount(), 4);
}

TEST_F(ViewLogbook, ShownFromOutsideTheListFollows) {
  addDives(1, 5);
  start();
  app->handle([&] {
    auto& form = app->Form3();
    form.Show();
    app->Modul1().ListeNachziehen = true;
    form.Data1.Recordset().Move(3);
  });
  EXPECT_EQ(app->Form3().Text1.text(), "4");
  EXPECT_EQ(app->Form3().List1.text(), "4");
}

}  // namespace
}  // namespace nautrel
