// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_test.h"

namespace nautrel {
namespace {

TEST_F(SearchTest, WordIsFoundAtTheBeginningOfAColumnWhateverItsCase) {
  startWith({{{"Platz", "Rotes Meer"}},
             {{"Platz", "Das Rote Meer"}},
             {{"Land", "Ägypten"}},
             {{"Ort", "äg"}},
             {{"Buddy", "ROT"}, {"Lang", "mit Ägidius"}},
             {{"Wetter", "ro"}, {"Anzug", Value("Rotbraun")}},
             {{"Nr", "7"}, {"Tag", "rot"}, {"Grafik", "rot"}}});
  auto& form = words();
  const std::pair<const char*, Texts> cases[] = {{"rot", {"1", "5", "6"}},
                                                 {"ROTES MEER", {"1"}},
                                                 {"äg", {"3", "4"}},
                                                 {"ÄGY", {"3"}},
                                                 {"Ro", {"1", "5", "6"}}};
  for (const auto& [term, hits] : cases) EXPECT_EQ(search(form, term), hits) << term;
  EXPECT_EQ(form.Label4.caption(), "3");
  range(form, "5", "5");
  EXPECT_EQ(search(form, "rot"), (Texts{"5"}));
  EXPECT_EQ(search(form, "meer"), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'meer' not found."}));
}

TEST_F(SearchTest, FirstColumnThatBeginsWithTheWordDecidesAndOneNotSearchedInheritsTheVerdict) {
  startWith({{{"Land", "Malta"}, {"Lang", "Malta again"}},
             {{"Lang", "Malta"}},
             {{"Land", "Malta"}},
             {{"Land", "Malta"}},
             {{"Land", "Egypt"}},
             {{"Land", "Malta"}}});
  auto& form = words();
  turn(form.Check1, false);
  EXPECT_EQ(search(form, "malta"), (Texts{"2", "3", "4"}));
}

TEST_F(SearchTest, EmptyWordFindsEveryDiveWithAFirstValue) {
  startWith({{{"Land", "x"}}, {{"Ort", "y"}}, {}, {{"Land", ""}}});
  auto& form = words();
  EXPECT_EQ(search(form, ""), (Texts{"1", "2", "4"}));
  EXPECT_EQ(form.Combo1.lines(), (Texts{""}));
  for (auto* box : {&form.Check1, &form.Check2, &form.Check3, &form.Check4, &form.Check5,
                    &form.Check6, &form.Check7})
    turn(*box, false);
  EXPECT_EQ(search(form, "x"), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'x' not found."}));
}

TEST_F(SearchTest, SearchGoesFromIdleToResultsAndBack) {
  startWith({{{"Land", "Malta"}}, {{"Land", "Egypt"}}, {{"Land", "Malta"}}});
  auto& form = words();
  EXPECT_TRUE(form.Combo1.hasFocus() && form.Command1.isDefault());
  search(form, "malta");
  EXPECT_FALSE(form.Combo1.enabled() || form.Command1.enabled());
  EXPECT_TRUE(form.Command2.enabled() && form.Command2.isDefault());
  EXPECT_TRUE(form.List1.hasFocus());
  EXPECT_EQ(form.Label4.caption(), "2");
  EXPECT_EQ(app->MDIForm1().ProgressBar1.Max(), 3);
  EXPECT_TRUE(app->MDIForm1().StatusBar1.visible());
  click(form.List1, 1);
  EXPECT_EQ(form.Frame2.caption(), "Dive 3");

  press(form, Key::Enter);
  EXPECT_EQ(form.List1.ListCount(), 0);
  EXPECT_EQ(form.Combo1.text(), "");
  EXPECT_TRUE(form.Combo1.hasFocus() && form.Command1.isDefault());
  EXPECT_EQ(form.Label4.caption(), "0");
  EXPECT_EQ(form.Frame2.caption(), "Dive");
  EXPECT_FALSE(form.Command2.enabled());
  EXPECT_EQ(form.Text2.text(), "3");

  search(form, "malta");
  search(form, "nowhere");
  EXPECT_EQ(desktop->texts(), (Texts{"'nowhere' not found."}));
  EXPECT_TRUE(form.Command1.enabled());
  EXPECT_EQ(form.Combo1.lines(), (Texts{"malta", "malta", "nowhere"}));
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(12));
}

}  // namespace
}  // namespace nautrel
