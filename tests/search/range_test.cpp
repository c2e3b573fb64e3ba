#include "search/search_test.h"

namespace nautrel {
namespace {

constexpr const char* kFirst = "First dive-# not valid";
constexpr const char* kLast = "Last dive-# not valid";
constexpr const char* kOrder = "First dive-# must be lower than last dive-#";

struct RangeCase {
  int logbookFrom;
  const char* first;
  const char* last;
  Texts messages;
  const char* verdict;
};

class SearchRange : public SearchTest, public ::testing::WithParamInterface<RangeCase> {};

TEST_P(SearchRange, IsCheckedByThreeTestsInOrder) {
  const auto& given = GetParam();
  addDives(given.logbookFrom, given.logbookFrom + 9);
  start();
  const auto check = [&](SearchForm& form, const char* stop) {
    range(form, given.first, given.last);
    click(form.Command1);
    auto expected = given.messages;
    for (auto& message : expected)
      if (message == kOrder) message += stop;
    EXPECT_EQ(desktop->texts(), expected) << form.name();
    EXPECT_EQ(form.Text3.text(), given.verdict) << form.name();
    EXPECT_TRUE(form.Command1.enabled());
    EXPECT_FALSE(form.Command2.enabled());
    EXPECT_EQ(app->MDIForm1().MousePointer(), 0);
  };
  check(words(), ".");
  EXPECT_TRUE(app->Form12().Combo1.enabled());
  EXPECT_TRUE(app->Form12().Combo1.lines().empty());
  check(numbers(), "");
  EXPECT_FALSE(app->Form14().Text4.enabled());
  check(everything(), "!");
  EXPECT_TRUE(app->Form20().Combo1.enabled());
  EXPECT_TRUE(app->Form20().enabled());
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, SearchRange,
    ::testing::Values(RangeCase{1, "7", "6", {kOrder}, "falsch"},
                      RangeCase{1, "11", "11", {kFirst, kLast}, "falsch letzter"},
                      RangeCase{1, "", "", {kFirst, kLast, kOrder}, "falsch"},
                      RangeCase{1, "", "5", {kFirst, kOrder}, "falsch"},
                      RangeCase{1, "2", "", {kLast, kOrder}, "falsch"},
                      RangeCase{5, "10", "12", {kFirst, kLast}, "falsch letzter"},
                      RangeCase{5, "4", "9", {kFirst}, "falsch erster"}));

struct FilterCase {
  const char* typed;
  const char* left;
};

TEST_F(SearchTest, BoxesOfTheRangeTakeWholeNumbersAloneButNotInTheFullSearch) {
  startWith({{}});
  const FilterCase cases[] = {{"007", "7"}, {"2.5", "2"}, {"0", ""},        {"x", ""},
                              {"", ""},     {"-3", ""},   {"12345", "1234"}};
  const auto check = [&](SearchForm& form, bool filtered) {
    for (const auto& [typed, left] : cases) {
      range(form, typed, typed);
      const auto expected = filtered ? left : std::string(typed).substr(0, 4);
      EXPECT_EQ(form.Text1.text(), expected) << form.name();
      EXPECT_EQ(form.Text2.text(), expected) << form.name();
    }
  };
  check(words(), true);
  check(numbers(), true);
  check(everything(), false);
}

TEST_F(SearchTest, SpinButtonsStopAtOneAndAtTheLastDive) {
  addDives(5, 7);
  start();
  auto& form = words();
  EXPECT_EQ(form.Text1.text(), "5");
  EXPECT_EQ(form.Text2.text(), "7");
  spinUp(form.SpinButton2);
  EXPECT_EQ(form.Text2.text(), "7");
  for (int i = 0; i < 6; ++i) spinDown(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "1");
  clear(form.Text1);
  spinUp(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "2");
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
