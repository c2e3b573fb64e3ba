// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/Form18.h"

#include "platform/errors.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;
using Settings = std::map<std::pair<std::string, std::string>, std::string>;

constexpr long kGrey = 12632256;

class Preferences : public LogbookTest {
 protected:
  Form18& open() {
    start();
    return reopen();
  }
  Form18& reopen() {
    click(app->MDIForm1().Menü1g);
    return app->Form18();
  }
  Form18& openStartPage() {
    auto& form = open();
    choose(form.SSTab1, 1);
    return form;
  }
  static Texts values(const Form18& form) {
    return {form.Label4.caption(), form.Label5.caption(), form.Label6.caption(),
            form.Label7.caption()};
  }
  static bool sizeEnabled(const Form18& form) {
    int enabled = 0;
    for (const auto* label : {&form.Label4, &form.Label5, &form.Label6, &form.Label7, &form.Label8,
                              &form.Label9, &form.Label10, &form.Label11})
      enabled += label->enabled() ? 1 : 0;
    EXPECT_TRUE(enabled == 0 || enabled == 8) << enabled;
    return enabled == 8;
  }
  std::string& setting(const char* section, const char* key) {
    return desktop->settings[{section, key}];
  }
  MDIForm1& frame() { return app->MDIForm1(); }
};

TEST_F(Preferences, WithoutReadableSettingsItShowsTheDesignAndACancelledDialogChangesNothing) {
  const Settings rubbish = {{{"Colors", "Main"}, "blue"},
                            {{"Start", "Window"}, "calculations"},
                            {{"Start", "Fenster"}, "ben"},
                            {{"Start", "Breite"}, "wide"}};
  start();
  for (const auto& settings : {rubbish, Settings()}) {
    desktop->settings = settings;
    auto& form = reopen();
    desktop->answerColor({}).answerFile({});
    form.Picture1.userClick();
    click(form.Command5);
    EXPECT_EQ(form.Picture1.BackColor(), kGrey);
    EXPECT_EQ(form.Combo1.text() + form.Text1.text(), "");
    EXPECT_TRUE(form.Option1.on());
    EXPECT_FALSE(sizeEnabled(form) || form.Command4.enabled());
    EXPECT_EQ(values(form), Texts(4, "---"));
    click(form.Command3);
    EXPECT_FALSE(app->loaded(18));
  }
  EXPECT_EQ(desktop->settings, (Settings{{{"Colors", "Main"}, "12632256"},
                                         {{"Start", "Window"}, ""},
                                         {{"Start", "Fenster"}, "Max"},
                                         {{"Start", "Grafic"}, ""}}));
}

TEST_F(Preferences, WhatIsSavedComesBack) {
  auto& form = open();
  const auto picture = folder.write("sea.bmp", "picture");
  desktop->answerColor(255).answerFile(picture);
  focus(form.Picture1);
  press(form, Key::Space);
  click(form.Command5);
  EXPECT_EQ(desktop->dialogs.back().title, "Load background image");
  EXPECT_EQ(desktop->dialogs.back().flags, 4);
  choose(form.SSTab1, 1);
  choose(form.Combo1, 17);
  click(form.Option2);
  EXPECT_EQ(pathOf(frame().picture()), "");
  click(form.Command4);
  EXPECT_EQ(pathOf(frame().picture()), picture);
  EXPECT_FALSE(form.Command4.enabled());
  EXPECT_EQ(desktop->settings, (Settings{{{"Colors", "Main"}, "255"},
                                         {{"Start", "Window"}, "Calculations"},
                                         {{"Start", "Fenster"}, "Ben"},
                                         {{"Start", "Breite"}, "15360"},
                                         {{"Start", "Höhe"}, "11520"},
                                         {{"Start", "Links"}, "0"},
                                         {{"Start", "Oben"}, "0"},
                                         {{"Start", "Grafic"}, picture}}));
  close(form);
  auto& again = reopen();
  EXPECT_EQ(again.Picture1.BackColor(), 255);
  EXPECT_EQ(again.Combo1.text(), "Calculations");
  EXPECT_EQ(again.Text1.text(), picture);
  EXPECT_TRUE(again.Option2.on());
  EXPECT_TRUE(sizeEnabled(again));
  EXPECT_EQ(values(again), (Texts{"15360", "11520", "0", "0"}));
  EXPECT_FALSE(again.Command4.enabled());
}

TEST_F(Preferences, AnEditFreesSaveChanges) {
  struct Edit {
    const char* size;
    int page;
    std::function<void(Form18&)> make;
  };
  const Edit edits[] = {{"", 1, [](Form18& form) { choose(form.Combo1, 3); }},
                        {"", 0, [](Form18& form) { type(form.Text1, "x"); }},
                        {"", 0, [](Form18& form) { click(form.Command2); }},
                        {"", 0, [](Form18& form) { form.Picture1.userClick(); }},
                        {"Ben", 1, [](Form18& form) { click(form.Option1); }},
                        {"", 1, [](Form18& form) { click(form.Option2); }}};
  start();
  desktop->answerColor(1);
  for (const auto* key : {"Breite", "Höhe", "Links", "Oben"}) setting("Start", key) = "9000";
  for (const auto& edit : edits) {
    SCOPED_TRACE(&edit - edits);
    setting("Start", "Fenster") = edit.size;
    auto& form = reopen();
    ASSERT_FALSE(form.Command4.enabled());
    choose(form.SSTab1, edit.page);
    edit.make(form);
    EXPECT_TRUE(form.Command4.enabled());
    close(form);
  }
}

TEST_F(Preferences, TheSizeFollowsAPressAndTheMainWindowButNoArrowKey) {
  auto& form = openStartPage();
  const auto expectSize = [&](const Texts& size) {
    EXPECT_EQ(values(form), size);
    EXPECT_EQ(sizeEnabled(form), size != Texts(4, "---"));
  };
  frame().userResized(150, 300, 12000, 9000);
  expectSize(Texts(4, "---"));
  focus(form.Option1);
  press(form, Key::Down);
  EXPECT_TRUE(form.Option2.on());
  expectSize(Texts(4, "---"));
  press(form, Key::Space);
  expectSize({"12000", "9000", "150", "300"});
  frame().userResized(165, 315, 12015, 9015);
  expectSize({"12015", "9015", "165", "315"});
  press(form, Key::Up);
  expectSize(Texts(4, "---"));
  press(form, Key::Down);
  frame().userResized(15, 30, 12000, 9000);
  EXPECT_EQ(values(form), (Texts{"12000", "9000", "15", "30"})) << "a resize fills them too";
  close(form);
  EXPECT_FALSE(app->Modul1().EinstellungenOffen);
  frame().userResized(0, 0, 10000, 8000);
  EXPECT_FALSE(app->loaded(18));
}

TEST_F(Preferences, AFreeSizeThatWasNeverShownIsThePresentOne) {
  auto& form = openStartPage();
  frame().userResized(150, 300, 12000, 9000);
  focus(form.Option1);
  press(form, Key::Down);
  ASSERT_EQ(values(form), Texts(4, "---"));
  click(form.Command3);
  EXPECT_EQ((Texts{setting("Start", "Fenster"), setting("Start", "Breite"),
                   setting("Start", "Höhe"), setting("Start", "Links"), setting("Start", "Oben")}),
            (Texts{"Ben", "12000", "9000", "150", "300"}));
  for (const char* key : {"Breite", "Oben"}) {
    const auto kept = setting("Start", key);
    setting("Start", key) = "---";
    restart();
    EXPECT_EQ(frame().windowState(), WindowState::Maximized) << key;
    EXPECT_TRUE(reopen().Option1.on());
    setting("Start", key) = kept;
  }
}

// A picture whose path is gone stays as it is, and so does any under a colour that is none.
TEST_F(Preferences, TheMainWindowTakesColorAndPictureFromTheSettingsAndCancelPutsThemBack) {
  struct Case {
    const char *color, *grafic;
    long shown;
    const char *atStart, *afterCancel;
  };
  const auto newPicture = folder.write("new.bmp", "picture");
  folder.write("old.bmp", "picture");
  const auto pathIn = [&](const char* name) { return *name == '\0' ? "" : folder.file(name); };
  for (const auto& item :
       {Case{"128", "old.bmp", 128, "old.bmp", "old.bmp"},
        Case{"", "old.bmp", kGrey, "", "new.bmp"}, Case{"red", "old.bmp", kGrey, "", "new.bmp"},
        Case{"9999999999", "old.bmp", kGrey, "", "new.bmp"},
        Case{"128", "gone.bmp", 128, "", "new.bmp"}}) {
    SCOPED_TRACE(item.color);
    const Settings settings = {{{"Colors", "Main"}, item.color},
                               {{"Start", "Grafic"}, folder.file(item.grafic)}};
    desktop->settings = settings;
    restart();
    EXPECT_EQ(frame().BackColor(), item.shown);
    EXPECT_EQ(pathOf(frame().picture()), pathIn(item.atStart));
    auto& form = reopen();
    desktop->answerColor(77);
    form.Picture1.userClick();
    EXPECT_EQ(frame().BackColor(), 77);
    clear(form.Text1);
    type(form.Text1, newPicture);
    click(form.Command4);
    desktop->settings = settings;
    press(form, Key::Escape);
    EXPECT_FALSE(app->loaded(18));
    EXPECT_EQ(frame().BackColor(), item.shown);
    EXPECT_EQ(pathOf(frame().picture()), pathIn(item.afterCancel));
  }
}

TEST_F(Preferences, APathThatCannotBeLoadedEndsTheProgramAfterTheSettings) {
  auto& form = open();
  type(form.Text1, "gone.bmp");
  click(form.Command3);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, FileNotFound);
  EXPECT_EQ(setting("Start", "Grafic"), "gone.bmp");
  EXPECT_EQ(setting("Colors", "Main"), "12632256");
}

}  // namespace
}  // namespace nautrel
