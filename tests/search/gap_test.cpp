// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_test.h"

namespace nautrel {
namespace {

class GapInTheNumbers : public SearchTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    for (const char* number : {"1", "2", "4", "5"}) add({{"Nr", number}, {"Zeit", "30"}});
    start();
    EXPECT_EQ(desktop->messages().size(), 1u);
  }
};

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

TEST_P(GapInTheNumbers, EndsTheProgramBehindTheLastRowAndWhereTheSearchBegins) {
  if (GetParam() == 12) search(words(), "x");
  if (GetParam() == 14) {
    range(numbers(), "3", "5");
    search(app->Form14(), "30");
  }
  if (GetParam() == 20) {
    range(everything(), "1.0", "3");
    click(app->Form20().Command1);
    EXPECT_FALSE(app->Form20().enabled());
  }
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
}
INSTANTIATE_TEST_SUITE_P(Searches, GapInTheNumbers, testing::Values(12, 14, 20));

}  // namespace
}  // namespace nautrel
