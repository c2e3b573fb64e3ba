// SPDX-License-Identifier: GPL-2.0-or-later
#include <tuple>

#include "platform/errors.h"
#include "search/search_test.h"

namespace nautrel {
namespace {

TEST(RichTextBoxTest, FindsPlainAndWholeWordsAndCountsCharacters) {
  const std::tuple<const char*, const char*, std::ptrdiff_t, std::ptrdiff_t> cases[] = {
      {"Das Rote Meer", "rote", 4, 4},
      {"Das Rote Meer", "ROT", 4, -1},
      {"Ärger, ärgern", "ÄRGERN", 7, 7},
      {"vor Åland", "åLAND", 4, 4},
      {"Œuvre Ñandú Ÿ", "ñANDÚ", 6, 6},
      {"heiß", "HEIß", 0, 0},
      {"heiß", "heiss", -1, -1},
      {"ääh ä", "ä", 0, 4},
      {"Deco-Stop", "deco", 0, 0},
      {"deco_stop", "deco", 0, -1},
      {"120 12", "12", 0, 4},
      {"m2 2", "2", 1, 3},
      {"(reef)", "reef", 1, 1},
      {"reefs reef.", "reef", 0, 6},
      {"aXa a", "a", 0, 4},
      {"no", "now", -1, -1},
      {"", "x", -1, -1},
      {"x", "", -1, -1}};
  RichTextBox box;
  for (const auto& [text, term, place, wholeWord] : cases) {
    box.setText(text);
    EXPECT_EQ(box.Find(term), place) << text << ": " << term;
    EXPECT_EQ(box.Find(term, RichTextBox::rtfWholeWord), wholeWord) << text << ": " << term;
  }
}

TEST_F(SearchTest, FullSearchSeesTheWholeRecordAsOneText) {
  Dive dive = {{"Land", "Malta"}, {"Ort", "Gozo"},        {"Platz", "Blue Hole"}, {"Tag", "05"},
               {"Monat", "03"},   {"Jahr", "2001"},       {"Buddy", "Anna"},      {"Zeit", "40"},
               {"Tiefe", "60"},   {"Lang", "dark"},       {"Bars", "2900"},       {"Wetter", "sun"},
               {"Anzug", "dry"},  {"Höhe", "10"},         {"Liter", "80"},        {"Bare", "500"},
               {"Blei", "8"},     {"Grafik", "C:\\p.bmp"}};
  for (const auto* flag :
       {"Salz", "Süß", "Ufer", "Boot", "Deco", "Alu", "Stahl", "Sichtg", "Sichtm", "Sichts", "Rep"})
    dive[flag] = true;
  startWith({dive, {}});
  auto& form = everything();
  const char* const full =
      "1 Malta Gozo Blue Hole 05.03.2001  Anna 40 60 dark 2900 sun dry 10 80 500 8 Salzwasser "
      "Süßwasser vom Ufer vom Boot Deco-Stop Aluflasche Stahlflasche gute Sicht mittlere Sicht "
      "schlechte Sicht Rep.-TG C:\\p.bmp ";
  range(form, "1", "1");
  EXPECT_EQ(search(form, "gozo BLUE"), (Texts{"1"}));
  EXPECT_EQ(form.RichTextBox1.text(), full);
  range(form, "2", "2");
  EXPECT_EQ(search(form, "2    ..  "), (Texts{"2"}));
  EXPECT_EQ(form.RichTextBox1.text(), "2    ..              ");
  range(form, "1", "2");
  EXPECT_EQ(search(form, "saltwater"), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'saltwater' not found"}));
  EXPECT_EQ(form.RichTextBox1.text(), "");
  EXPECT_TRUE(form.enabled());
}

TEST_F(SearchTest, FullSearchTakesWholeWordsIfAsked) {
  startWith({{{"Zeit", "12"}}, {{"Zeit", "120"}}, {{"Deco", true}}});
  auto& form = everything();
  EXPECT_EQ(search(form, "12"), (Texts{"1", "2"}));
  EXPECT_EQ(search(form, "stop"), (Texts{"3"}));
  click(form.Check1);
  EXPECT_EQ(search(form, "12"), (Texts{"1"}));
  EXPECT_EQ(search(form, "stop"), (Texts{"3"}));
  EXPECT_EQ(search(form, "sto"), Texts{});
  EXPECT_EQ(search(form, ""), Texts{});
  EXPECT_EQ(desktop->texts(), (Texts{"'sto' not found", "'' not found"}));
  EXPECT_EQ(form.Combo1.lines(), (Texts{"12", "stop", "12", "stop", "sto", ""}));
}

// The place of a hit is kept in 16 bits; the record begins with the number and four columns.
TEST_F(SearchTest, FullSearchEndsTheProgramAtAHitBehindThirtyTwoThousandCharacters) {
  const std::string before = "1    ..     ";
  const auto comment = [&](std::size_t place) {
    return Dive{{"Lang", std::string(place - before.size(), 'x') + "wreck"}};
  };
  startWith({comment(32767), comment(32768)});
  auto& form = everything();
  range(form, "1", "1");
  EXPECT_EQ(search(form, "wreck"), (Texts{"1"}));
  range(form, "1", "2");
  search(form, "wreck");
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, Overflow);
  EXPECT_FALSE(form.enabled());
}

}  // namespace
}  // namespace nautrel
