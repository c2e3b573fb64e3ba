// SPDX-License-Identifier: GPL-2.0-or-later
#include <tuple>

#include "search/search_test.h"

namespace nautrel {
namespace {

enum class Mode { Less, Equal, More };

class NumberSearch : public SearchTest {
 protected:
  static void searchIn(Form14& form, CheckBox& box) {
    for (auto* other : {&form.Check1, &form.Check2, &form.Check3, &form.Check4, &form.Check5})
      turn(*other, false);
    turn(box, true);
  }
  static OptionButton& option(Form14& form, Mode mode) {
    return mode == Mode::Less ? form.Option4 : mode == Mode::Equal ? form.Option5 : form.Option6;
  }
  Texts found(Form14& form, Mode mode, const char* typed) {
    click(option(form, mode));
    return search(form, typed);
  }
};

TEST_F(NumberSearch, ComparesNumbersInTwoModesAndTextInOne) {
  std::vector<Dive> dives;
  for (const Value& liters : {Value("29"), Value("30"), Value("30.0"), Value(""), Value("x"),
                              Value::null(), Value("1,000")})
    dives.push_back({{"Liter", liters}});
  startWith(dives);
  auto& form = numbers();
  searchIn(form, form.Check9);
  const std::tuple<Mode, const char*, Texts> cases[] = {
      {Mode::Less, "30", {"1", "4", "5"}},
      {Mode::More, "30", {"4", "5", "7"}},
      {Mode::More, "29.5", {"2", "3", "4", "5", "7"}},
      {Mode::Less, "", {"1", "2", "3", "4", "5", "6", "7"}},
      {Mode::More, "deep", {"1", "2", "3", "4", "5", "6", "7"}},
  };
  for (const auto& [mode, typed, hits] : cases)
    EXPECT_EQ(found(form, mode, typed), hits) << static_cast<int>(mode) << ' ' << typed;
  turn(form.Check9, false);
  for (const auto& [mode, message] : {std::pair{Mode::Less, "kleiner '30' not found"},
                                      std::pair{Mode::More, "größer '30' not found"}}) {
    EXPECT_EQ(found(form, mode, "30"), Texts{});
    EXPECT_EQ(desktop->texts(), (Texts{message}));
    EXPECT_TRUE(form.Text4.hasFocus() && form.Command1.enabled());
    EXPECT_EQ(form.Text4.text(), "");
  }
  turn(form.Check9, true);
  desktop->places = commaLocale();
  EXPECT_EQ(found(form, Mode::Less, "29,5"), (Texts{"1", "4", "5", "7"}));
  EXPECT_EQ(found(form, Mode::More, "299"), (Texts{"3", "4", "5"}));
}

const Dive kFull = {{"Zeit", "30"},   {"Tiefe", "30"}, {"Tag", "07"},  {"Monat", "03"},
                    {"Jahr", "1999"}, {"Bars", "200"}, {"Bare", "50"}, {"Liter", "12"},
                    {"Höhe", "0"},    {"Blei", "8"}};

TEST_F(NumberSearch, FirstEqualColumnDecidesByItsBox) {
  auto noTime = kFull;
  noTime["Zeit"] = Value::null();
  startWith({kFull, noTime});
  auto& form = numbers();
  EXPECT_EQ(search(form, "30"), (Texts{"1", "2"}));
  EXPECT_EQ(search(form, "1999"), (Texts{"1", "2"}));
  for (const char* other : {"30.0", "030", " 30", "8"}) {
    EXPECT_EQ(search(form, other), (Texts{"2"})) << other << ": a column that is NULL is equal";
  }
  range(form, "2", "1");
  search(form, "30");
  EXPECT_EQ(desktop->texts().size(), 1u);
  EXPECT_FALSE(form.Text4.enabled() || form.Command2.enabled());
  range(form, "1", "1");
  click(form.Command1);
  EXPECT_EQ(form.List1.lines(), (Texts{"1"})) << "the number was kept";
  range(form, "1", "2");
  turn(form.Check11, true);
  EXPECT_EQ(search(form, "8"), (Texts{"1", "2"}));
  turn(form.Check1, false);
  EXPECT_EQ(search(form, "30"), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'30' not found"}));
}

TEST_F(NumberSearch, DateIsSearchedByItselfAndByItsCharacters) {
  startWith({kFull});
  auto& form = numbers();
  click(form.Option6);
  turn(form.Check3, false);
  click(form.Check6);
  for (auto* box : {&form.Check3, &form.Check4, &form.Check5})
    EXPECT_FALSE(box->on() || box->enabled()) << box->name();
  EXPECT_FALSE(form.Option4.enabled() || form.Option6.enabled());
  EXPECT_TRUE(form.Option5.on());
  EXPECT_EQ(search(form, "07.03.1999"), (Texts{"1"}));
  EXPECT_EQ(search(form, "7.3.1999"), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'7.3.1999' not found"}));
  click(form.Check6);
  for (auto* box : {&form.Check3, &form.Check4, &form.Check5})
    EXPECT_TRUE(box->on() && box->enabled()) << box->name();
  EXPECT_TRUE(form.Option4.enabled() && form.Option5.on());
  EXPECT_EQ(search(form, "07.03.1999"), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'07.03.1999' not found"}));
}

}  // namespace
}  // namespace nautrel
