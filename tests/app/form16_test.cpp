// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/Form16.h"

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

TEST_F(Information, TellsWhatTheProgramIsAndStandsOnByTextsTurnedRound) {
  auto& form = open();
  EXPECT_EQ(form.Label1.caption(), "Nautrel 2.0");
  for (const auto* library : {"Qt", "SQLite", "utf8proc", "mustache", "libwmf", "libemf2svg"})
    EXPECT_NE(form.Label4.caption().find(library), std::string::npos) << library;
  EXPECT_NE(form.Label6.caption().find("GNU General Public License"), std::string::npos);
  form.Label3.setCaption("ßröw\n?nebü");
  form.Logbuch();
  EXPECT_EQ(form.Label3.caption(), "üben?\nwörß");
}

TEST_F(Information, StandsBesideAnythingAndClosesByKeyByButtonAndByClick) {
  open();
  click(app->MDIForm1().Menü1c);
  const std::function<void(Form16&)> ways[] = {[](Form16& form) { press(form, Key::Escape); },
                                               [](Form16& form) { form.Picture1.userClick(); },
                                               [](Form16& form) { click(form.Command1); }};
  for (const auto& way : ways) {
    ASSERT_TRUE(app->loaded(16));
    way(app->Form16());
    EXPECT_FALSE(app->loaded(16));
    EXPECT_TRUE(app->loaded(15));
    click(app->MDIForm1().Menü5b);
  }
}

TEST_F(Information, BubblesRiseAndBeginAgain) {
  const auto& bubble = open().Shape1;
  double before = bubble.Top();
  int returns = 0;
  for (int beat = 0; beat < 1000; ++beat) {
    app->Form16().Timer1.userFires();
    if (bubble.Top() > before) ++returns;
    before = bubble.Top();
    ASSERT_GT(before, -bubble.Size());
    ASSERT_LE(before, app->Form16().Height());
  }
  EXPECT_GT(returns, 0);
}

}  // namespace
}  // namespace nautrel
