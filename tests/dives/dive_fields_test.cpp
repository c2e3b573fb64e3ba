#include "dives/Form2.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class DiveFields : public LogbookTest {
 protected:
  Form2& open() {
    start();
    click(app->MDIForm1().Menü2a);
    return app->Form2();
  }
};

struct LeavingCase {
  TextBox DiveEntryForm::*box;
  const char* typed;
  const char* left;
  const char* message;  // null: none, and the focus goes on
};

class LeavingABox : public DiveFields, public ::testing::WithParamInterface<LeavingCase> {};

TEST_P(LeavingABox, PadsOrComplains) {
  auto& form = open();
  auto& box = form.*GetParam().box;
  paste(box, GetParam().typed);
  focus(box);
  focus(form.Text2);
  EXPECT_EQ(box.text(), GetParam().left);
  if (GetParam().message == nullptr) {
    EXPECT_EQ(desktop->texts(), Texts{});
    EXPECT_EQ(form.activeControl(), &form.Text2);
  } else {
    const auto texts = desktop->texts();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back(), GetParam().message);
    EXPECT_EQ(form.activeControl(), &box);
  }
}

constexpr const char* kDay = "Day is not valid";
constexpr const char* kMonth = "Month is not valid";
constexpr const char* kYear = "Please enter the year with 4 digits (e.g. 1999)";

INSTANTIATE_TEST_SUITE_P(
    Boxes, LeavingABox,
    ::testing::Values(LeavingCase{&DiveEntryForm::Text5, "7", "07", nullptr},
                      LeavingCase{&DiveEntryForm::Text5, "09", "09", nullptr},
                      LeavingCase{&DiveEntryForm::Text5, "", "", nullptr},
                      LeavingCase{&DiveEntryForm::Text5, "31", "31", nullptr},
                      LeavingCase{&DiveEntryForm::Text5, "32", "32", kDay},
                      LeavingCase{&DiveEntryForm::Text5, "0", "0", kDay},
                      LeavingCase{&DiveEntryForm::Text5, "-1", "-1", kDay},
                      LeavingCase{&DiveEntryForm::Text5, "ab", "ab", kDay},
                      LeavingCase{&DiveEntryForm::Text6, "9", "09", nullptr},
                      LeavingCase{&DiveEntryForm::Text6, "13", "13", kMonth},
                      LeavingCase{&DiveEntryForm::Text6, "ab", "ab", kMonth},
                      LeavingCase{&DiveEntryForm::Text7, "999", "999", kYear},
                      LeavingCase{&DiveEntryForm::Text7, "ab", "ab", kYear},
                      LeavingCase{&DiveEntryForm::Text7, "1000", "1000", nullptr},
                      LeavingCase{&DiveEntryForm::Text7, "", "", nullptr},
                      LeavingCase{&DiveEntryForm::Text9, "180", "180", nullptr},
                      LeavingCase{&DiveEntryForm::Text10, "330", "330", nullptr},
                      LeavingCase{&DiveEntryForm::Text10, "030", "30", nullptr},
                      LeavingCase{&DiveEntryForm::Text10, "1.50", "1.5", nullptr}));

TEST_F(DiveFields, TheFocusIsBackBeforeTheDayComplainsAndAfterTheYearDoes) {
  auto& form = open();
  Control* during = nullptr;
  desktop->whileBoxIsOpen = [&] { during = form.activeControl(); };
  type(form.Text5, "0");
  focus(form.Text2);
  EXPECT_EQ(during, &form.Text5);
  clear(form.Text5);
  type(form.Text7, "5");
  focus(form.Text2);
  EXPECT_EQ(during, &form.Text2);
  EXPECT_EQ(form.activeControl(), &form.Text7);
}

TEST_F(DiveFields, TwoDigitsJumpOnThroughTheDate) {
  auto& form = open();
  type(form.Text5, "1");
  EXPECT_EQ(form.activeControl(), &form.Text5);
  typeOn(form, "5");
  EXPECT_EQ(form.activeControl(), &form.Text6);
  typeOn(form, "09");
  EXPECT_EQ(form.activeControl(), &form.Text6);
  press(form, Key::Tab);
  typeOn(form, "1999Anna");
  EXPECT_EQ(form.Text8.text(), "Anna");
  EXPECT_EQ(form.Text7.text(), "1999");
}

struct TypingCase {
  const char* typed;
  const char* time;
  const char* depth;
};

class TypingANumber : public DiveFields, public ::testing::WithParamInterface<TypingCase> {};

TEST_P(TypingANumber, KeepsOrEmptiesTheBox) {
  auto& form = open();
  type(form.Text9, GetParam().typed);
  type(form.Text10, GetParam().typed);
  EXPECT_EQ(form.Text9.text(), GetParam().time);
  EXPECT_EQ(form.Text10.text(), GetParam().depth);
}

INSTANTIATE_TEST_SUITE_P(Texts, TypingANumber,
                         ::testing::Values(TypingCase{"45", "45", "45"}, TypingCase{"0", "0", "0"},
                                           TypingCase{"007", "7", "007"},
                                           TypingCase{"1.5", "15", "1.5"},
                                           TypingCase{"12a", "", ""}, TypingCase{"-3", "3", "3"},
                                           TypingCase{"4a56", "56", "56"}));

TEST_F(DiveFields, PastedHalvesGoToTheEvenNeighbourInTheLocale) {
  desktop->places = commaLocale();
  auto& form = open();
  paste(form.Text9, "2,5");
  EXPECT_EQ(form.Text9.text(), "2");
  clear(form.Text9);
  paste(form.Text9, "3,5");
  EXPECT_EQ(form.Text9.text(), "4");
  paste(form.Text10, "1,50");
  focus(form.Text2);
  EXPECT_EQ(form.Text10.text(), "1,5");
}

TEST_F(DiveFields, DoubtfulValuesAskAndNoReturnsTheFocus) {
  auto& form = open();
  paste(form.Text9, "181");
  desktop->answer(kNo);
  focus(form.Text2);
  EXPECT_EQ(desktop->messages(),
            (std::vector<Shown>{{"Ist die Tauchzeit wirklich korrekt?", 36, "Tauchzeit"}}));
  EXPECT_EQ(form.activeControl(), &form.Text9);
  desktop->answer(kYes).answer(kYes);
  paste(form.Text10, "331");
  click(form.Check2);
  EXPECT_EQ(desktop->messages().back(), (Shown{"Is the depth really correct?", 36, "Depth"}));
  EXPECT_FALSE(form.Check2.on());
}

TEST_F(DiveFields, ARuleThatTakesTheFocusBackSwallowsTheClick) {
  auto& form = open();
  type(form.Text5, "0");
  click(form.Command4);
  EXPECT_EQ(desktop->texts(), Texts{kDay});
  EXPECT_EQ(form.Text5.text(), "0");
  press(form, Key::Escape);
  EXPECT_EQ(desktop->texts(), Texts{});
  EXPECT_FALSE(app->loaded(2));
}

TEST_F(DiveFields, ADoubleClickClearsAnOption) {
  auto& form = open();
  choose(form.SSTab1, 2);
  click(form.Option1);
  click(form.Option2);
  EXPECT_FALSE(form.Option1.on());
  doubleClick(form.Option2);
  doubleClick(form.Option1);
  EXPECT_FALSE(form.Option1.on() || form.Option2.on());
  click(form.Option3);
  EXPECT_TRUE(form.Option3.on());
}

TEST_F(DiveFields, EnterMakesALineInTheCommentsAloneAndTheMarkerIsSet) {
  auto& form = open();
  choose(form.SSTab1, 1);
  type(form.Text11, "a");
  press(form, Key::Enter);
  typeOn(form, "b");
  EXPECT_EQ(form.Text11.text(), "a\nb");
  EXPECT_EQ(form.Text20.text(), "geändert");
  choose(form.SSTab1, 0);
  EXPECT_TRUE(form.Command1.isDefault());
}

TEST_F(DiveFields, ABoxTakesNoMoreThanItHolds) {
  auto& form = open();
  paste(form.Text2, "Äußere Hebriden, Schottland");
  EXPECT_EQ(form.Text2.text(), "Äußere Hebriden, Sch");
  form.Text2.userSelect(0, 0);
  typeOn(form, "x");
  EXPECT_EQ(form.Text2.text(), "Äußere Hebriden, Sch");
}

}  // namespace
}  // namespace nautrel
