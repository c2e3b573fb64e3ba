// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/Form22.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

class Calculations : public LogbookTest {
 protected:
  Form22& open(int page = 0) {
    start();
    click(app->MDIForm1().Menü7c);
    choose(app->Form22().SSTab1, page);
    return app->Form22();
  }
};

void fill(TextBox& box, const std::string& text) {
  clear(box);
  paste(box, text);
}

void fill(Form22& form, const AirTexts& air) {
  fill(form.Text1, air.depth1);
  fill(form.Text2, air.depth2);
  fill(form.Text3, air.volume);
  fill(form.Text4, air.density);
}

template <class... Parts>
void expectVisible(bool visible, const Parts&... parts) {
  for (const Control* part : std::initializer_list<const Control*>{&parts...})
    EXPECT_EQ(part->visible(), visible) << part->name();
}

TEST_F(Calculations, FollowTheAirIntoTheDepthInEitherLocale) {
  auto& form = open();
  EXPECT_EQ(form.Label6.caption(), "14,2 psi") << "its design text";
  const struct {
    AirTexts air;
    const char *pressure1, *pressure2, *volume, *density;
  } cases[] = {
      {{"0", "33", "1", "1"}, "14.2 psi", "28.5 psi", "0.50", "2.01"},
      {{"33", "0", "1", "1"}, "28.5 psi", "14.2 psi", "2.01", "0.50"},
      {{"66", "0", "12", "1.2"}, "42.8 psi", "14.2 psi", "36.15", "0.40"},
      {{"-33", "0", "1", "1"}, "-0.1 psi", "14.2 psi", "-0.01", "-164.00"},
      // A depth that does not read has no pressure, and nothing divides by it.
      {{"", "33", "1", "1"}, "0.0 psi", "28.5 psi", "0.00", "0.00"},
      {{"0", "deep", "1", "1"}, "14.2 psi", "0.0 psi", "0.00", "0.00"},
      {{"0", "33", "", "1"}, "14.2 psi", "28.5 psi", "0.00", "2.01"},
      {{"0", "33", "1", "a"}, "14.2 psi", "28.5 psi", "0.50", "0.00"},
      {{"9E9", "0", "9E+307", "1"}, "3902652453.2 psi", "14.2 psi", "0.00", "0.00"},
  };
  for (const bool comma : {false, true}) {
    desktop->places = comma ? commaLocale() : Locale();
    const auto here = [&](const std::string& text) { return comma ? withComma(text) : text; };
    for (const auto& [air, pressure1, pressure2, volume, density] : cases) {
      SCOPED_TRACE(air.depth1 + " to " + air.depth2);
      fill(form, {air.depth1, air.depth2, here(air.volume), here(air.density)});
      press(form, Key::Enter);
      EXPECT_EQ(form.Label6.caption(), here(pressure1));
      EXPECT_EQ(form.Label9.caption(), here(pressure2));
      EXPECT_EQ(form.Label11.caption(), here(volume));
      EXPECT_EQ(form.Label13.caption(), here(density));
    }
  }
}

TEST_F(Calculations, DrawTheSceneOfEveryWayToGo) {
  auto& form = open();
  const struct {
    AirTexts air;
    double lowerAir;
    bool escapes, up, down;
    const char *upper, *lower, *note;
  } cases[] = {
      {{"0", "33", "1", "1"}, 20, false, false, true, "0 ft", "33 ft", "Air goes out"},
      {{"33", "0", "1", "1"}, 40, true, true, false, "0 ft", "33 ft", "50% air escapes"},
      {{"10", "10", "1", "1"}, 40, false, true, true, "10 ft", "10 ft", "50% air escapes"},
      {{"x", "10", "1", "1"}, 40, true, true, true, "10 ft", "x ft", "50% air escapes"},
      {{"10", "x", "1", "1"}, 40, true, true, true, "x ft", "10 ft", "50% air escapes"},
      // The share that escapes comes from the rounded volume.
      {{"66", "0", "12", "1.2"}, 40, true, true, false, "0 ft", "66 ft", "67% air escapes"},
      {{"1", "0", "0.1", "1"}, 40, true, true, false, "0 ft", "1 ft", "% air escapes"},
      {{"9", "8", "1.004", "1"}, 40, true, true, false, "8 ft", "9 ft", "3% air escapes"},
      {{"1", "0", "0.014", "1"}, 40, true, true, false, "0 ft", "1 ft", "-40% air escapes"},
      {{"1", "1", "0.005", "1"}, 80, false, true, true, "1 ft", "1 ft", "-40% air escapes"},
      // A height that cannot be computed stays.
      {{"0", "66", "", "1"}, 80, false, false, true, "0 ft", "66 ft", "-40% air escapes"},
      {{"0", "66", "0", "1"}, 80, false, false, true, "0 ft", "66 ft", "-40% air escapes"},
      {{"0", "66", "much", "1"}, 80, false, false, true, "0 ft", "66 ft", "-40% air escapes"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.air.depth1 + " to " + c.air.depth2 + ": " + c.air.volume);
    fill(form, c.air);
    click(form.Command3);
    EXPECT_TRUE(form.Picture2.shows() && !form.Picture1.shows());
    EXPECT_NEAR(form.Shape3.Height() / Form22::kTwips, 40, 0.001);
    EXPECT_NEAR(form.Shape4.Height() / Form22::kTwips, c.lowerAir, 0.001);
    expectVisible(c.escapes, form.Label15, form.Shape5, form.Shape10);
    expectVisible(c.up, form.Line10, form.Line11);
    expectVisible(c.down, form.Line12, form.Line13);
    EXPECT_EQ(form.Label17.caption(), c.upper);
    EXPECT_EQ(form.Label16.caption(), c.lower);
    EXPECT_EQ(form.Label15.caption(), c.note);
    click(form.Command4);
    EXPECT_TRUE(form.Picture1.shows());
  }
  desktop->places = commaLocale();
  fill(form, {"66", "0", "1,5", "1"});
  click(form.Command3);
  EXPECT_EQ(form.Label15.caption(), "67% air escapes");
}

TEST_F(Calculations, KeepTheSceneInFrontUntilBackIsPressed) {
  auto& form = open();
  focus(form.Text1);
  click(form.Command3);
  EXPECT_TRUE(form.Command4.hasFocus());
  choose(form.SSTab1, 1);
  EXPECT_TRUE(form.Text5.hasFocus());
  choose(form.SSTab1, 0);
  EXPECT_TRUE(form.Picture2.shows());
  EXPECT_TRUE(form.Command4.hasFocus());
  press(form, Key::Enter);
  EXPECT_TRUE(form.Picture1.shows());
  choose(form.SSTab1, 1);
  choose(form.SSTab1, 0);
  EXPECT_TRUE(form.Text1.hasFocus());
}

TEST_F(Calculations, SelectABoxThatGetsTheFocusAndPressItsButtonByEnterAndTabPastIt) {
  auto& form = open();
  for (auto* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text6, &form.Text5}) {
    const bool inTable = box != &form.Text5 && box != &form.Text6;
    choose(form.SSTab1, inTable ? 0 : 1);
    fill(*box, "64");
    focus(inTable ? static_cast<Control&>(form.Command2) : form.Option1);
    type(*box, "7");
    EXPECT_EQ(box->text(), "7");
    EXPECT_TRUE((inTable ? form.Command1 : form.Command6).isDefault());
    for (int presses = 0; presses < 8; ++presses) {
      press(form, Key::Tab);
      EXPECT_EQ(dynamic_cast<TextBox*>(form.activeControl()), nullptr);
    }
  }
}

TEST_F(Calculations, WeighTheSolid) {
  auto& form = open(1);
  EXPECT_EQ(form.Label23.caption(), "<no calculation>");
  enum Arrow { None, Up, Down };
  const struct {
    OptionButton& water;
    const char *volume, *weight;
    Arrow arrow;
    const char* text;
  } cases[] = {{form.Option1, "1", "64", Up, "The solid rises up (m = -0.1 lb)"},
               {form.Option1, "1", "64.1", None, "The solid hover (m = -0.0 lb)"},
               {form.Option2, "1", "64", Down, "The solid sinks down (m = 1.6 lb)"},
               {form.Option2, "1", "62.4", None, "The solid hover (m = 0.0 lb)"},
               {form.Option1, "0", "10", Down, "The solid sinks down (m = 10.0 lb)"},
               {form.Option1, "", "", None, "The solid hover (m = 0.0 lb)"},
               {form.Option1, "big", "0.1", Down, "The solid sinks down (m = 0.1 lb)"},
               {form.Option2, "1", "heavy", Up, "The solid rises up (m = -62.4 lb)"}};
  for (const bool comma : {false, true}) {
    desktop->places = comma ? commaLocale() : Locale();
    for (const auto& c : cases) {
      click(c.water);
      fill(form.Text5, c.volume);
      fill(form.Text6, comma ? withComma(c.weight) : c.weight);
      press(form, Key::Enter);
      EXPECT_EQ(form.Label23.caption(), comma ? withComma(c.text) : c.text);
      expectVisible(c.arrow == Up, form.Line15, form.Line16, form.Line17);
      expectVisible(c.arrow == Down, form.Line18, form.Line19, form.Line20);
    }
  }
}

// Of two writes the first may fail, and the second works on the text that was there.
TEST_F(Calculations, SetTheBoxThatHadTheFocusNotLast) {
  auto& form = open(1);
  const struct {
    OptionButton& water;
    TextBox &from, &to;
    const char *given, *before, *set;
    bool comma = false;
  } cases[] = {{form.Option1, form.Text5, form.Text6, "1,0", "", "64,1214", true},
               {form.Option2, form.Text5, form.Text6, "1", "7", "62.3574"},
               {form.Option1, form.Text5, form.Text6, "", "7", "0"},
               {form.Option1, form.Text5, form.Text6, "big", "heavy", "0"},
               {form.Option1, form.Text5, form.Text6, "1E308", "10", "22.05"},
               {form.Option1, form.Text5, form.Text6, "1E308", "heavy", "heavy"},
               {form.Option1, form.Text6, form.Text5, "64", "", "0,999399653918141", true},
               {form.Option2, form.Text6, form.Text5, "heavy", "3", "0"}};
  for (const auto& c : cases) {
    desktop->places = c.comma ? commaLocale() : Locale();
    click(c.water);
    fill(c.to, c.before);
    fill(c.from, c.given);
    EXPECT_EQ(form.Command7.caption(), &c.from == &form.Text5 ? "Set weight" : "Set volume");
    click(form.Command7);
    EXPECT_EQ(c.to.text(), c.set) << c.given;
  }
  EXPECT_EQ(form.Label23.caption(), "<no calculation>");
}

TEST_F(Calculations, CloseFromEveryPageAndForgetEverything) {
  auto* form = &open();
  for (const auto button : {&Form22::Command2, &Form22::Command5}) {
    fill(*form, {"5", "6", "1", "1"});
    if (button == &Form22::Command5) choose(form->SSTab1, 1);
    click(form->*button);
    EXPECT_FALSE(app->loaded(22));
    click(app->MDIForm1().Menü7c);
    form = &app->Form22();
    EXPECT_EQ(form->Text1.text(), "0");
  }
  choose(form->SSTab1, 1);
  press(*form, Key::Escape);
  EXPECT_FALSE(app->loaded(22));
}

}  // namespace
}  // namespace nautrel
