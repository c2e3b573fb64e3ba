// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/Form22.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

class Calculations : public LogbookTest {
 protected:
  Form22& open() {
    start();
    click(app->MDIForm1().Menü7c);
    return app->Form22();
  }
  Form22& openBuoyancy() {
    auto& form = open();
    choose(form.SSTab1, 1);
    return form;
  }
};

void fill(TextBox& box, const char* text) {
  clear(box);
  type(box, text);
}

void fillTable(Form22& form, const char* depth1, const char* depth2, const char* volume = "1") {
  fill(form.Text1, depth1);
  fill(form.Text2, depth2);
  fill(form.Text3, volume);
}

template <class... Parts>
void expectVisible(bool visible, const Parts&... parts) {
  for (const Control* part : std::initializer_list<const Control*>{&parts...})
    EXPECT_EQ(part->visible(), visible) << part->name();
}

TEST_F(Calculations, OpenWithTheirDesignTexts) {
  auto& form = open();
  EXPECT_EQ(form.caption(), "Calculations");
  EXPECT_EQ(form.Label6.caption(), "14,2 psi");
  EXPECT_EQ(form.Command7.caption(), "Set weight");
  EXPECT_TRUE(form.Picture1.shows());
  EXPECT_FALSE(form.Picture2.shows());
  click(form.Command1);
  EXPECT_EQ(form.Label6.caption(), "14.2 psi");
}

TEST_F(Calculations, FollowTheAirIntoTheDepth) {
  desktop->places = commaLocale();
  auto& form = open();
  fillTable(form, "66", "0", "12");
  type(form.Text4, "1,2");
  press(form, Key::Enter);
  EXPECT_EQ(form.Label6.caption(), "42,8 psi");
  EXPECT_EQ(form.Label9.caption(), "14,2 psi");
  EXPECT_EQ(form.Label11.caption(), "36,15");
  EXPECT_EQ(form.Label13.caption(), "0,40");
}

TEST_F(Calculations, DrawTheSceneOfEveryWayToGo) {
  auto& form = open();
  const struct {
    const char *depth1, *depth2;
    double upperAir, lowerAir;
    bool escapes, up, down;
    const char *upper, *lower, *note;
  } cases[] = {
      {"0", "33", 40, 20, false, false, true, "0 ft", "33 ft", "Air goes out"},
      {"33", "0", 40, 40, true, true, false, "0 ft", "33 ft", "50% air escapes"},
      {"10", "10", 40, 40, false, true, true, "10 ft", "10 ft", "50% air escapes"},
      {"x", "10", 40, 40, true, true, true, "10 ft", "x ft", "50% air escapes"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.depth1);
    fillTable(form, c.depth1, c.depth2);
    click(form.Command3);
    EXPECT_TRUE(form.Picture2.shows());
    EXPECT_FALSE(form.Picture1.shows());
    EXPECT_NEAR(form.Shape3.Height() / Form22::kTwips, c.upperAir, 0.001);
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

TEST_F(Calculations, SelectABoxThatGetsTheFocusAndPressItsButtonByEnter) {
  auto& form = open();
  for (auto* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4}) {
    type(*box, "7");
    EXPECT_EQ(box->text(), "7");
    EXPECT_TRUE(form.Command1.isDefault());
  }
  choose(form.SSTab1, 1);
  for (auto* box : {&form.Text6, &form.Text5}) {
    type(*box, "64");
    focus(form.Option1);
    type(*box, "1");
    EXPECT_EQ(box->text(), "1");
    EXPECT_TRUE(form.Command6.isDefault());
  }
}

TEST_F(Calculations, WalkPastTheBoxes) {
  auto& form = open();
  for (const int page : {0, 1}) {
    choose(form.SSTab1, page);
    for (int presses = 0; presses < 8; ++presses) {
      press(form, Key::Tab);
      EXPECT_EQ(dynamic_cast<TextBox*>(form.activeControl()), nullptr);
    }
  }
}

TEST_F(Calculations, WeighTheSolid) {
  auto& form = openBuoyancy();
  EXPECT_EQ(form.Label23.caption(), "<no calculation>");
  enum Arrow { None, Up, Down };
  const struct {
    OptionButton& water;
    const char* weight;
    const char* text;
    Arrow arrow;
  } cases[] = {{form.Option1, "64", "The solid rises up (m = -0.1 lb)", Up},
               {form.Option2, "64", "The solid sinks down (m = 1.6 lb)", Down},
               {form.Option1, "64.1", "The solid hover (m = -0.0 lb)", None}};
  for (const auto& c : cases) {
    click(c.water);
    fill(form.Text5, "1");
    fill(form.Text6, c.weight);
    press(form, Key::Enter);
    EXPECT_EQ(form.Label23.caption(), c.text);
    expectVisible(c.arrow == Up, form.Line15, form.Line16, form.Line17);
    expectVisible(c.arrow == Down, form.Line18, form.Line19, form.Line20);
  }
}

TEST_F(Calculations, SetTheBoxThatHadTheFocusNotLast) {
  auto& form = openBuoyancy();
  type(form.Text5, "1");
  click(form.Option2);
  click(form.Command7);
  EXPECT_EQ(form.Text6.text(), "62.3574");
  EXPECT_EQ(form.Command7.caption(), "Set weight");
  click(form.Option1);
  focus(form.Text6);
  EXPECT_EQ(form.Command7.caption(), "Set volume");
  typeOn(form, "64");
  click(form.Command7);
  EXPECT_EQ(form.Text5.text(), "0.999399653918141");
  EXPECT_EQ(form.Label23.caption(), "<no calculation>");
}

TEST_F(Calculations, CloseFromEveryPageAndForgetEverything) {
  auto* form = &open();
  for (const auto button : {&Form22::Command2, &Form22::Command5}) {
    fillTable(*form, "5", "6");
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
