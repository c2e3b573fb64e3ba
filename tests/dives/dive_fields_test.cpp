// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form2.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class DiveFields : public LogbookTest {
 protected:
  Form2& open() {
    startAt(&MDIForm1::Menü2a);
    return app->Form2();
  }
};

constexpr const char* kDay = "Day is not valid";
constexpr const char* kMonth = "Month is not valid";
constexpr const char* kYear = "Please enter the year with 4 digits (e.g. 1999)";

TEST_F(DiveFields, LeavingABoxPadsOrComplains) {
  auto& form = open();
  const struct {
    TextBox* box;
    const char *typed, *left;
    const char* message = nullptr;  // none, and the focus goes on
  } cases[] = {{&form.Text5, "7", "07"},
               {&form.Text5, "09", "09"},
               {&form.Text5, "", ""},
               {&form.Text5, "31", "31"},
               {&form.Text5, "32", "32", kDay},
               {&form.Text5, "0", "0", kDay},
               {&form.Text5, "-1", "-1", kDay},
               {&form.Text5, "ab", "ab", kDay},
               {&form.Text6, "9", "09"},
               {&form.Text6, "13", "13", kMonth},
               {&form.Text6, "ab", "ab", kMonth},
               {&form.Text7, "999", "999", kYear},
               {&form.Text7, "ab", "ab", kYear},
               {&form.Text7, "1000", "1000"},
               {&form.Text7, "", ""},
               {&form.Text9, "180", "180"},
               {&form.Text10, "330", "330"},
               {&form.Text10, "030", "30"},
               {&form.Text10, "1.50", "1.5"}};
  for (const auto& [box, typed, left, message] : cases) {
    SCOPED_TRACE(box->name() + " " + typed);
    paste(*box, typed);
    focus(*box);
    desktop->messages();
    focus(form.Text2);
    EXPECT_EQ(box->text(), left);
    EXPECT_EQ(desktop->texts(), message ? Texts{message} : Texts{});
    EXPECT_EQ(form.activeControl(), message ? box : &form.Text2);
    clear(*box);
  }
}

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

TEST_F(DiveFields, TypingANumberKeepsOrEmptiesTheBox) {
  auto& form = open();
  const struct {
    const char *typed, *time, *depth;
  } cases[] = {{"45", "45", "45"}, {"0", "0", "0"},  {"007", "7", "007"}, {"1.5", "15", "1.5"},
               {"12a", "", ""},    {"-3", "3", "3"}, {"4a56", "56", "56"}};
  for (const auto& [typed, time, depth] : cases) {
    clear(form.Text9);
    type(form.Text9, typed);
    EXPECT_EQ(form.Text9.text(), time);
    clear(form.Text10);
    type(form.Text10, typed);
    EXPECT_EQ(form.Text10.text(), depth);
  }
}

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

TEST_F(DiveFields, ABoxTakesNoMoreThanItHolds) {
  auto& form = open();
  paste(form.Text2, "Äußere Hebriden, Schottland");
  EXPECT_EQ(form.Text2.text(), "Äußere Hebriden, Sch");
}

}  // namespace
}  // namespace nautrel
