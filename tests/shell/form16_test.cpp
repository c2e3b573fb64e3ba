#include "shell/Form16.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

class Information : public LogbookTest {
 protected:
  Form16& open() {
    start();
    click(app->MDIForm1().Menü5b);
    return app->Form16();
  }
};

TEST_F(Information, TellsWhatTheProgramIsAndStandsOn) {
  auto& form = open();
  EXPECT_EQ(form.Label1.caption(), "Nautrel 2.0");
  for (const auto* library : {"Qt", "SQLite", "utf8proc", "mustache", "libwmf", "libemf2svg"})
    EXPECT_NE(form.Label4.caption().find(library), std::string::npos) << library;
}

TEST_F(Information, ALabelIsTurnedRoundCharacterByCharacter) {
  auto& form = open();
  form.Label3.setCaption("ßröw\n?nebü");
  form.Logbuch();
  EXPECT_EQ(form.Label3.caption(), "üben?\nwörß");
}

TEST_F(Information, StandsBesideAnythingAndClosesByKeyByButtonAndByClick) {
  auto& form = open();
  click(app->MDIForm1().Menü1c);
  ASSERT_TRUE(app->loaded(16));
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(16));
  click(app->MDIForm1().Menü5b);
  app->Form16().Picture1.userClick();
  EXPECT_FALSE(app->loaded(16));
  click(app->MDIForm1().Menü5b);
  click(app->Form16().Command1);
  EXPECT_FALSE(app->loaded(16));
  EXPECT_TRUE(app->loaded(15));
}

TEST_F(Information, BubblesRiseAndBeginAgain) {
  auto& form = open();
  double lowest = form.Shape1.Top();
  double before = lowest;
  int returns = 0;
  for (int beat = 0; beat < 1000; ++beat) {
    form.Timer1.userFires();
    const double top = form.Shape1.Top();
    if (top > before) ++returns;
    EXPECT_GT(top, -form.Shape1.Size());
    before = top;
    lowest = std::max(lowest, top);
  }
  EXPECT_GT(returns, 0);
  EXPECT_LE(lowest, form.Height());
}

}  // namespace
}  // namespace nautrel
