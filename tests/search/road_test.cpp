// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "platform/errors.h"
#include "search/search_test.h"

namespace nautrel {
namespace {

constexpr int kSearches[] = {12, 14, 20};

struct Record {
  int window;
  OptionButton SearchForm::*option;
  const char* mode;
};
constexpr Record kRecords[] = {{3, &SearchForm::Option1, "anzeigen"},
                               {4, &SearchForm::Option2, "bearbeiten"},
                               {5, &SearchForm::Option3, "löschen"}};

class RoadTest : public SearchTest {
 protected:
  /// Eight dives, of which 2, 4, 6 and 8 are hits of each search.
  void startWithHits() {
    for (int number = 1; number <= 8; ++number) {
      auto dive = someDive(number);
      if (number % 2 == 0) dive["Land"] = "Malta";
      dive["Zeit"] = number % 2 == 0 ? "33" : "44";
      add(dive);
    }
    start();
  }
  SearchForm& found(int window) {
    if (window == 14) {
      auto& form = numbers();
      EXPECT_EQ(search(form, "33"), kHits);
      return form;
    }
    auto& form = window == 12 ? static_cast<TermSearchForm&>(words()) : everything();
    EXPECT_EQ(search(form, "malta"), kHits);
    return form;
  }
  Form& recordForm(int window) {
    if (window == 3) return app->Form3();
    if (window == 4) return app->Form4();
    return app->Form5();
  }
  Button& back(int window) {
    return *dynamic_cast<Button*>(recordForm(window).control("Command3"));
  }
  std::string shownDive(int window) {
    return dynamic_cast<TextBox*>(recordForm(window).control("Text1"))->text();
  }
  bool flag(int search) const {
    const auto& shared = app->Modul1();
    return search == 12   ? shared.VonWortsuche
           : search == 14 ? shared.VonZahlensuche
                          : shared.VonVollsuche;
  }

  const Texts kHits{"2", "4", "6", "8"};
};

class Road : public RoadTest, public ::testing::WithParamInterface<std::tuple<int, Record>> {};

TEST_P(Road, LeadsFromTheHitToTheDiveAndBack) {
  const auto& [searchWindow, record] = GetParam();
  startWithHits();
  auto& search = found(searchWindow);
  click(search.*record.option);
  if (record.window == 4) {
    EXPECT_EQ(search.Command3.caption(), "Edit");
  }
  click(search.List1, 1);
  click(search.Command3);

  EXPECT_EQ(search.windowState(), WindowState::Minimized);
  EXPECT_TRUE(flag(searchWindow));
  auto& form = recordForm(record.window);
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(shownDive(record.window), "4");
  EXPECT_EQ(back(record.window).caption(), "&Back");

  auto& list = app->Form19();
  EXPECT_EQ(app->activeForm(), &list);
  EXPECT_EQ(list.List1.lines(), kHits);
  EXPECT_EQ(list.List1.ListIndex(), 1);
  EXPECT_EQ(list.Text1.text(), record.mode);
  EXPECT_EQ(list.Width(), Form19::kListWidth + 100);
  EXPECT_EQ(list.Height(), form.Height());
  EXPECT_EQ(list.Left(), form.Left() - list.Width());

  for (const int line : {2, 0, 3}) {
    click(list.List1, line);
    EXPECT_EQ(shownDive(record.window), kHits[static_cast<std::size_t>(line)]);
    EXPECT_EQ(app->activeForm(), &list);
  }
  if (record.window == 3) {
    EXPECT_EQ(app->Form3().List1.ListIndex(), 7);
  }

  click(back(record.window));
  EXPECT_FALSE(app->loaded(record.window) || app->loaded(19));
  EXPECT_EQ(search.windowState(), WindowState::Normal);
  EXPECT_EQ(search.List1.lines(), kHits);
  EXPECT_EQ(search.List1.ListIndex(), 1);
  close(search);
  EXPECT_FALSE(flag(searchWindow));
}

INSTANTIATE_TEST_SUITE_P(Nine, Road,
                         ::testing::Combine(::testing::ValuesIn(kSearches),
                                            ::testing::ValuesIn(kRecords)));

TEST_F(RoadTest, BeginsWithADoubleClickAndNotWithoutASelectedLineAndAnEmptyListEndsTheProgram) {
  startWithHits();
  auto& search = found(12);
  click(search.Command3);
  EXPECT_EQ(search.windowState(), WindowState::Normal);
  EXPECT_FALSE(app->loaded(3));
  doubleClick(search.List1, 3);
  EXPECT_EQ(shownDive(3), "8");
  EXPECT_EQ(search.Frame2.caption(), "Dive 8");
  doubleClick(numbers().List1, -1);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, TypeMismatch);
}

TEST_F(RoadTest, TakenTwiceFillsTheListTwiceAndClosingTheSearchLeavesTheDiveAndItsInput) {
  startWithHits();
  auto& search = found(20);
  click(search.Option2);
  doubleClick(search.List1, 0);
  auto& edited = app->Form4();
  type(edited.Text4, "!");
  const auto typed = edited.Text4.text();
  search.userState(WindowState::Normal);
  click(search.Option1);
  doubleClick(search.List1, 2);
  EXPECT_EQ(shownDive(3), "6");
  EXPECT_EQ(shownDive(4), "2");
  EXPECT_EQ(edited.Text4.text(), typed);
  EXPECT_EQ(app->Form19().List1.lines(), (Texts{"2", "4", "6", "8", "2", "4", "6", "8"}));
  close(search);
  EXPECT_FALSE(app->loaded(19));
  EXPECT_TRUE(app->Form3().visible());
  click(app->Form3().Command3);
  EXPECT_FALSE(app->loaded(20));
}

TEST_F(RoadTest, ListKeepsTheOldNumbersAfterADeletionAndFindsTheDivesThatHaveThemNow) {
  startWithHits();
  auto& search = found(12);
  click(search.Option3);
  doubleClick(search.List1, 1);
  const auto deleteOne = [&] {
    desktop->answer(kYes);
    click(app->Form5().Command1);
  };
  deleteOne();
  auto& list = app->Form19().List1;
  EXPECT_EQ(list.lines(), kHits);
  for (const auto& [line, shown] : {std::pair{2, "6"}, {0, "2"}}) {
    click(list, line);
    EXPECT_EQ(shownDive(5), shown);
  }
  deleteOne();
  doubleClick(search.List1, 1);
  EXPECT_EQ(shownDive(5), "4");
  click(list, 3);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
}

class LastDive : public RoadTest, public ::testing::WithParamInterface<int> {};

TEST_P(LastDive, DeletedFromItsHitClosesTheWordSearchAloneOfTheThree) {
  startWithHits();
  auto& search = found(GetParam());
  click(search.Option3);
  doubleClick(search.List1, 0);
  auto& form = app->Form5();
  choose(form.SSTab1, 1);
  type(form.Text6, "1");
  type(form.Text7, "8");
  desktop->answer(kYes);
  click(form.Command4);
  EXPECT_FALSE(app->loaded(5) || app->loaded(19));
  EXPECT_EQ(app->loaded(GetParam()), GetParam() != 12);
  EXPECT_EQ(flag(GetParam()), GetParam() != 12);
  EXPECT_FALSE(app->MDIForm1().Menü3b.enabled());
}

INSTANTIATE_TEST_SUITE_P(Searches, LastDive, ::testing::ValuesIn(kSearches));

}  // namespace
}  // namespace nautrel
