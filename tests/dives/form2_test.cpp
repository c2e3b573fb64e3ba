// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form2.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class InsertDive : public LogbookTest {
 protected:
  Form2& open() {
    startAt(&MDIForm1::Menü2a);
    return app->Form2();
  }
  static void fill(Form2& form) {
    const std::pair<TextBox*, const char*> entries[] = {
        {&form.Text2, "Egypt"}, {&form.Text3, "Hurghada"}, {&form.Text4, "Giftun"},
        {&form.Text5, "05"},    {&form.Text6, "03"},       {&form.Text7, "2001"},
        {&form.Text8, "Anna"},  {&form.Text9, "45"},       {&form.Text10, "60"}};
    for (const auto& [box, text] : entries) type(*box, text);
  }
};

TEST_F(InsertDive, AnEmptyLogbookComesToLifeWhenTheWindowCloses) {
  auto& form = open();
  EXPECT_EQ(form.Text1.text(), "1");
  EXPECT_EQ(form.activeControl(), &form.Text2);
  fill(form);
  press(form, Key::Enter);
  EXPECT_EQ(form.Text1.text(), "2");
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 1 (1 to 1)");
  EXPECT_FALSE(app->MDIForm1().Menü3a.enabled());
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(2));
  EXPECT_TRUE(app->MDIForm1().Menü3a.enabled());
  EXPECT_TRUE(app->MDIForm1().Toolbar1.buttons()[19].enabled);
}

TEST_F(InsertDive, BehindTheDepthComeTheButtonsAndThenTheMarks) {
  auto& form = open();
  Texts stops;
  do {
    stops.push_back(form.activeControl()->name());
    press(form, Key::Tab);
  } while (form.activeControl() != &form.Text2);
  EXPECT_EQ(stops, (Texts{"Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9",
                          "Text10", "Command1", "Command2", "Command3", "Check2", "Check3",
                          "Check4", "Check1", "Check5", "Command4", "SSTab1"}));
}

TEST_F(InsertDive, TheNextDiveKeepsWhatIsMarkedAndTheTank) {
  auto& form = open();
  fill(form);
  form.Text11.setText("Hai");
  choose(form.SSTab1, 2);
  click(form.Option5);
  for (auto* box : {&form.Text13, &form.Text14, &form.Text15, &form.Text16, &form.Text17,
                    &form.Text18, &form.Text19})
    type(*box, "80");
  choose(form.SSTab1, 0);
  const auto boxesLeftByNext = [&] {
    click(form.Command1);
    std::string left;
    for (const auto* control : form.controls())
      if (const auto* box = dynamic_cast<const TextBox*>(control); box && !box->isEmpty())
        left += box->name() + " ";
    return left;
  };
  const std::string always = "Text1 Text14 Text15 Text16 Text19 Text17 Text13 Text18 ";
  click(form.Check3);
  click(form.Check5);
  EXPECT_EQ(boxesLeftByNext(), "Text2 Text4 Text8 " + always);
  EXPECT_EQ(form.Text1.text(), "2");
  fill(form);
  for (auto* mark : {&form.Check1, &form.Check2, &form.Check3, &form.Check4, &form.Check5})
    click(*mark);
  EXPECT_EQ(boxesLeftByNext(), "Text3 Text5 Text6 Text7 " + always);
  EXPECT_TRUE(form.Option5.on());
  EXPECT_EQ(form.Text20.text(), "");
  EXPECT_EQ(form.activeControl(), &form.Command1);
}

TEST_F(InsertDive, AnEmptyRequiredBoxIsNamedAndOkClosesAllTheSame) {
  auto& form = open();
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), Texts{"Day - Month - Year - Divetime - Depth - could not be empty!"});
  fill(form);
  clear(form.Text10);
  clear(form.Text5);
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), Texts{"Day - Depth - could not be empty!"});
  EXPECT_EQ(form.Text1.text(), "1");
  EXPECT_EQ(form.Text2.text(), "Egypt");
  EXPECT_EQ(form.Text20.text(), "");
  click(form.Command2);
  EXPECT_EQ(desktop->texts(), Texts{"Day - Depth - could not be empty!"});
  EXPECT_FALSE(app->loaded(2));
  EXPECT_TRUE(column("Nr").empty());
}

TEST_F(InsertDive, TodayIsPaddedByTheRulesOfItsBoxes) {
  auto& form = open();
  click(form.Command4);
  EXPECT_EQ((Texts{form.Text5.text(), form.Text6.text(), form.Text7.text()}),
            (Texts{"05", "03", "2001"}));
  EXPECT_EQ(form.activeControl(), &form.Text8);
}

TEST_F(InsertDive, ThePictureStaysOnShowWhenTheNextDiveBegins) {
  auto& form = open();
  fill(form);
  const auto picture = folder.write("reef.jpg", "picture");
  const auto rubbish = folder.write("rubbish.jpg", "no such thing");
  choose(form.SSTab1, 3);
  desktop->answerFile(picture).answerFile(rubbish).answerFile({});
  click(form.Command5);
  EXPECT_EQ(pathOf(form.Image4.picture()), picture);
  EXPECT_EQ(desktop->dialogs.back().title, "Link a graphic with this dive");
  click(form.Command5);
  EXPECT_EQ(form.Text21.text(), rubbish);
  EXPECT_EQ(pathOf(form.Image4.picture()), picture);
  click(form.Command5);
  EXPECT_EQ(form.Text21.text(), rubbish);
  click(form.Command1);
  EXPECT_EQ(form.Text21.text(), "");
  EXPECT_EQ(pathOf(form.Image4.picture()), picture);
  EXPECT_EQ(column("Grafik"), Texts{rubbish});
}

TEST_F(InsertDive, NineThousandNineHundredNinetyNineIsTheLastNumber) {
  add({{"Nr", "9998"}});
  auto& form = open();
  EXPECT_EQ(form.Text1.text(), "9999");
  fill(form);
  click(form.Command1);
  EXPECT_EQ(desktop->texts(),
            Texts{"You could not insert more than 9999 dives. Please select 'Sort logbook' and "
                  "enter a lower start number. This dive will be saved."});
  EXPECT_FALSE(app->loaded(2));
  EXPECT_EQ(column("Nr"), (Texts{"9998", "9999"}));

  click(app->MDIForm1().Menü2a);
  EXPECT_EQ(desktop->texts(),
            Texts{"The last dive number is over 9998. You could not enter more than 9999 dives. "
                  "Please select 'Sort logbook' and enter a lower start number. "});
  EXPECT_EQ(app->activeForm(), nullptr);
}

TEST_F(InsertDive, TheNumberFollowsTheLastRowAndNotTheHighest) {
  add({{"Nr", "20"}});
  add({{"Nr", "7"}});
  auto& form = open();
  EXPECT_EQ(form.Text1.text(), "8");
  type(form.Text1, "5");
  EXPECT_EQ(form.Text1.text(), "8");
  close(form);
  add({{"Nr", Value::null()}});
  click(app->MDIForm1().Menü2a);
  EXPECT_EQ(app->Form2().Text1.text(), "1");
  EXPECT_EQ(desktop->texts(), Texts{});
}

}  // namespace
}  // namespace nautrel
