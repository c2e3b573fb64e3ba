// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form3.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Arrow = Navigator::Arrow;
using Texts = std::vector<std::string>;

class ViewLogbook : public LogbookTest {
 protected:
  Form3& open() {
    startAt(&MDIForm1::Menü3a);
    return app->Form3();
  }
  Form3& openWith(const Dive& dive) { return add(dive), open(); }
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

// Where the numbers begin at 1 its line follows as well.
TEST_F(ViewLogbook, AJumpMovesInsideTheRange) {
  addDives(1, 10);
  auto& form = open();
  for (const auto& [answer, shown] :
       {std::pair{"7", "7"}, {"0", "7"}, {"10", "10"}, {"11", "10"}, {"1", "1"}}) {
    desktop->answerInput(answer);
    click(form.Command1);
    EXPECT_EQ(form.Text1.text(), shown) << answer;
    EXPECT_EQ(form.List1.text(), shown) << answer;
  }
}

TEST_F(ViewLogbook, ArrowsLeafAtOnceAndDigitsGoToADive) {
  addDives(1, 30);
  auto& form = open();
  press(form, Key::Down);
  EXPECT_EQ(form.Text1.text(), "2");
  press(form, Key::Up);
  press(form, Key::Up);
  EXPECT_EQ(form.Text1.text(), "1");
  form.List1.userSearch("2", true);
  form.List1.userSearch("27", false);
  EXPECT_EQ(form.Text1.text(), "27");
  form.List1.userSearch("2", true);
  EXPECT_EQ(form.Text1.text(), "28");
  form.List1.userSearch("x", true);
  EXPECT_EQ(form.List1.text(), "28");
}

// Every press shows the row it leads to, and the list follows only where it holds that number.
TEST_F(ViewLogbook, AnyOrderOfNumbersCanBeLeafedThrough) {
  const std::vector<Texts> logbooks = {
      {"1", "1", "4", "2"}, {"1", "3", "5", "2", "4", "6"}, {"1", "3", "3", "3", "1", "2"},
      {"2", "1"},           {"3", "abc", "", "1e9", "1"},   {"1", "1", "1"}};
  for (const auto& numbers : logbooks) {
    for (const auto& number : numbers) add({{"Nr", number}});
    restart();
    click(app->MDIForm1().Menü3a);
    auto& form = app->Form3();
    const auto last = numbers.size() - 1;
    press(form.Data1, Arrow::Last);
    EXPECT_EQ(form.Text1.text(), numbers[last]);
    for (std::size_t row = last; row-- > 0;) {
      press(form.Data1, Arrow::Previous);
      EXPECT_EQ(form.Text1.text(), numbers[row]);
    }
    for (int line = 0; line <= static_cast<int>(last); ++line) click(form.List1, line);
    const auto failure = desktop->failure() ? desktop->failure()->number : 0;
    EXPECT_TRUE(failure == 0 || failure == TypeMismatch || failure == NoCurrentRecord) << failure;
    app.reset();
    for (std::size_t row = 0; row < numbers.size(); ++row) deleteElsewhere("Logbuch", 0);
  }
}

TEST_F(ViewLogbook, NullColumnsLeaveTheirBoxesEmptyAndTheRestIsShown) {
  addDives(1, 1);
  auto& form = openWith({{"Nr", "2"}, {"Tag", "1"}, {"Ort", "Dahab"}, {"Blei", "12"}});
  press(form.Data1, Arrow::Next);
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

}  // namespace
}  // namespace nautrel
