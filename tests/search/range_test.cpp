// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_test.h"

namespace nautrel {
namespace {

constexpr const char* kFirst = "First dive-# not valid";
constexpr const char* kLast = "Last dive-# not valid";
constexpr const char* kOrder = "First dive-# must be lower than last dive-#";

struct Range {
  const char *first, *last;
  Texts messages;
  const char* verdict;
};

class SearchRange : public SearchTest {
 protected:
  void expectChecked(const std::vector<Range>& ranges) {
    for (const auto& range : ranges) {
      expectChecked(words(), range, ".");
      EXPECT_TRUE(app->Form12().Combo1.enabled());
      EXPECT_TRUE(app->Form12().Combo1.lines().empty());
      expectChecked(numbers(), range, "");
      EXPECT_FALSE(app->Form14().Text4.enabled());
      expectChecked(everything(), range, "!");
      EXPECT_TRUE(app->Form20().Combo1.enabled() && app->Form20().enabled());
    }
  }

 private:
  void expectChecked(SearchForm& form, const Range& given, const char* stop) {
    SCOPED_TRACE(form.name() + " " + given.first + " to " + given.last);
    range(form, given.first, given.last);
    click(form.Command1);
    auto expected = given.messages;
    for (auto& message : expected)
      if (message == kOrder) message += stop;
    EXPECT_EQ(desktop->texts(), expected);
    EXPECT_EQ(form.Text3.text(), given.verdict);
    EXPECT_TRUE(form.Command1.enabled());
    EXPECT_FALSE(form.Command2.enabled());
    EXPECT_EQ(app->MDIForm1().MousePointer(), 0);
  }
};

TEST_F(SearchRange, IsCheckedByThreeTestsInOrder) {
  addDives(1, 10);
  start();
  expectChecked({{"7", "6", {kOrder}, "falsch"},
                 {"11", "11", {kFirst, kLast}, "falsch letzter"},
                 {"", "", {kFirst, kLast, kOrder}, "falsch"},
                 {"", "5", {kFirst, kOrder}, "falsch"},
                 {"2", "", {kLast, kOrder}, "falsch"}});
}

TEST_F(SearchRange, IsComparedAsTextBelowAndAsNumbersAbove) {
  addDives(5, 14);
  start();
  expectChecked(
      {{"10", "12", {kFirst, kLast}, "falsch letzter"}, {"4", "9", {kFirst}, "falsch erster"}});
}

TEST_F(SearchRange, IsEmptyWhereTheLogbookHasNoNumberAndRefused) {
  add({{"Nr", Value::null()}});
  add({{"Nr", "2"}});
  start();
  desktop->messages();
  const auto expectEmpty = [](const SearchForm& form) {
    EXPECT_EQ((Texts{form.Text1.text(), form.Text2.text()}), (Texts{"", "2"})) << form.name();
  };
  expectEmpty(words());
  expectEmpty(numbers());
  expectEmpty(everything());
  expectChecked({{"1", "2", {kFirst, kLast}, "falsch letzter"}});
  add({{"Nr", Value::null()}});
  EXPECT_EQ(words().Text2.text(), "");
  expectChecked({{"2", "2", {kFirst, kLast}, "falsch letzter"}});
}

TEST_F(SearchTest, BoxesOfTheRangeTakeWholeNumbersAloneButNotInTheFullSearch) {
  startWith({{}});
  const std::pair<const char*, const char*> cases[] = {
      {"007", "7"}, {"2.5", "2"}, {"0", ""}, {"x", ""}, {"-3", ""}, {"12345", "1234"}};
  const auto expectFiltered = [&](SearchForm& form) {
    for (const auto& [typed, left] : cases) {
      range(form, typed, typed);
      EXPECT_EQ((Texts{form.Text1.text(), form.Text2.text()}), (Texts{left, left}));
    }
  };
  expectFiltered(words());
  expectFiltered(numbers());
  auto& form = everything();
  range(form, "2.5", "x");
  EXPECT_EQ((Texts{form.Text1.text(), form.Text2.text()}), (Texts{"2.5", "x"}));
}

TEST_F(SearchTest, SpinButtonsStopAtOneAndAtTheLastDive) {
  addDives(5, 7);
  start();
  auto& form = words();
  EXPECT_EQ((Texts{form.Text1.text(), form.Text2.text()}), (Texts{"5", "7"}));
  spinUp(form.SpinButton2);
  EXPECT_EQ(form.Text2.text(), "7");
  for (int i = 0; i < 6; ++i) spinDown(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "1");
}

TEST_F(SearchTest, FirstNumberThatNoRowHasEndsTheProgram) {
  startWith({{}, {}, {}});
  auto& form = everything();
  range(form, "1.0", "3");
  click(form.Command1);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
  EXPECT_FALSE(form.enabled());
}

class GapInTheNumbers : public SearchTest {
 protected:
  void SetUp() override {
    for (const char* number : {"1", "2", "4", "5"}) add({{"Nr", number}, {"Zeit", "30"}});
    start();
    EXPECT_EQ(desktop->messages().size(), 1u);
  }
};

TEST_F(GapInTheNumbers, EndsTheSearchOfAWordBehindTheLastRow) {
  EXPECT_EQ(search(words(), "x"), Texts{});
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
}

// Behind the last row every test fails and enters its block: the counter grows, the list does not.
TEST_F(GapInTheNumbers, IsPassedOverByTheSearchOfANumber) {
  auto& form = numbers();
  EXPECT_EQ(search(form, "30"), (Texts{"1", "2", "4", "5"}));
  EXPECT_EQ(form.Label4.caption(), "5");
  click(form.Command2);
  click(form.Option6);
  EXPECT_EQ(search(form, "31"), Texts{});
  EXPECT_EQ(form.Label4.caption(), "1");
}

TEST_F(GapInTheNumbers, EndsTheProgramIfTheNumberSearchBeginsInIt) {
  auto& form = numbers();
  range(form, "3", "5");
  search(form, "30");
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
  EXPECT_EQ(desktop->failure()->text, "No current record.");
}

}  // namespace
}  // namespace nautrel
