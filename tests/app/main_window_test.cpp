// SPDX-License-Identifier: GPL-2.0-or-later
#include <fstream>

#include "dives/Form2.h"
#include "dives/Form3.h"
#include "shell/Form1.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kNotSorted =
    "Attention! The dives are not sorted correctly. Please select 'Sort logbook'. Otherwise there "
    "could be program errors.";

class MainWindow : public LogbookTest {
 protected:
  MDIForm1& frame() { return app->MDIForm1(); }
};

TEST_F(MainWindow, TheSplashStandsInTheMiddleAndGivesWayToTheMainWindow) {
  app->start();
  const auto& splash = app->Form1();
  EXPECT_EQ(splash.Timer1.interval(), 800);
  EXPECT_EQ(splash.Left(), desktop->size.width / 2 - splash.Width() / 2);
  EXPECT_EQ(splash.Top(), desktop->size.height / 2 - splash.Height() / 2);
  EXPECT_FALSE(app->loaded(0));
  app->Form1().Timer1.userFires();
  EXPECT_FALSE(app->loaded(1));
  EXPECT_TRUE(frame().visible());
  EXPECT_EQ(frame().caption(), "Nautrel 2.0");
  EXPECT_EQ(frame().windowState(), WindowState::Maximized);
}

struct CountCase {
  std::vector<Value> numbers;
  std::vector<Shown> messages;
  const char* status;
};

class Count : public MainWindow, public ::testing::WithParamInterface<CountCase> {};

TEST_P(Count, IsHeldAgainstTheRangeAtTheStart) {
  for (const auto& number : GetParam().numbers) add({{"Nr", number}});
  start();
  EXPECT_EQ(desktop->messages(), GetParam().messages);
  EXPECT_EQ(status(), std::string("<Logbuch.mdb> Dives Logged: ") + GetParam().status);
  EXPECT_EQ(frame().Menü2b.enabled(), !GetParam().numbers.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Logbooks, Count,
    ::testing::Values(CountCase{{}, {}, "0"}, CountCase{{"5", "6"}, {}, "2 (5 to 6)"},
                      CountCase{{"1", "3"}, {{kNotSorted}}, "2 (1 to 3)"},
                      // A gap and a double that cancel each other pass.
                      CountCase{{"1", "1", "3"}, {}, "3 (1 to 3)"},
                      // What is no number is not sorted, and no more.
                      CountCase{{Value::null(), "2"}, {{kNotSorted}}, "2 ( to 2)"},
                      CountCase{{"1", Value::null()}, {{kNotSorted}}, "2 (1 to )"},
                      CountCase{{"", "2"}, {{kNotSorted}}, "2 ( to 2)"},
                      CountCase{{"1", "abc"}, {{kNotSorted}}, "2 (1 to abc)"},
                      CountCase{{"1", "1e999"}, {{kNotSorted}}, "2 (1 to 1e999)"}));

TEST_F(MainWindow, AnEmptyLogbookLocksExactlyWhatNeedsDives) {
  start();
  Texts free;
  for (auto* menu : frame().menus())
    for (auto* item : menu->items())
      if (item != nullptr && item->enabled()) free.push_back(item->name());
  EXPECT_EQ(free,
            (Texts{"Menü1f", "Menü1b", "Menü1c", "Menü1g", "Menü1e", "Menü2a", "Menü7b", "Menü7a",
                   "Menü7c", "Menü5a", "Menü5b", "Menü6a", "Menü8a", "Menü8b", "Menü8c"}));
  for (int button = 1; button <= 23; ++button) {
    const auto& shown = frame().Toolbar1.buttons()[static_cast<std::size_t>(button - 1)];
    const bool always =
        shown.key.empty() || button == 2 || button == 7 || button == 8 || button >= 22;
    EXPECT_EQ(shown.enabled, always) << shown.key;
  }
  app->Modul1().MenuesFreigeben();
  EXPECT_TRUE(frame().Menü6h.enabled());
}

TEST_F(MainWindow, AFullLogbookRefusesInTwoLanguages) {
  addDives(1, 9998);
  start();
  click(frame().Menü2a);
  EXPECT_TRUE(app->loaded(2));
  add({{"Nr", "9999"}});
  for (auto* item : {&frame().Menü2a, &frame().Menü6a}) {
    click(*item);
    EXPECT_EQ(desktop->texts(),
              Texts{"Die Datenbank kann nicht mehr als 9999 Tauchgänge aufnehmen"});
    EXPECT_FALSE(app->loaded(2));
  }
  click(frame().Toolbar1, "einfügen");
  EXPECT_EQ(desktop->texts(), Texts{"You could not insert more than 9999 dives in the database."});
}

TEST_F(MainWindow, TheWindowsOfTheExclusiveSetCloseEachOther) {
  addDives(1, 3);
  start();
  click(frame().Toolbar1, "logbuch");
  auto* first = &app->Form3();
  press(first->Data1, Navigator::Arrow::Next);
  click(frame().Menü3a);
  EXPECT_EQ(app->Form3().Text1.text(), "2") << "an open window stays as it is";
  click(frame().Toolbar1, "einfügen");
  EXPECT_FALSE(app->loaded(3));
  type(app->Form2().Text2, "unsaved");
  click(frame().Menü6c);
  EXPECT_FALSE(app->loaded(2));
  EXPECT_EQ(desktop->texts(), Texts{});
}

TEST_F(MainWindow, AFreeSizeIsTakenFromTheSettingsAndRubbishInItEndsTheProgram) {
  desktop->settings = {{{"Start", "Fenster"}, "Ben"},
                       {{"Start", "Breite"}, "10000"},
                       {{"Start", "Höhe"}, "8000.5"},
                       {{"Start", "Links"}, "300"},
                       {{"Start", "Oben"}, "150"}};
  start();
  EXPECT_EQ(frame().windowState(), WindowState::Normal);
  EXPECT_EQ(frame().Width(), 10000);
  EXPECT_EQ(frame().Height(), 8000.5);
  EXPECT_EQ(frame().Left(), 300);
  EXPECT_EQ(status(), "") << "too narrow for the panel";
  frame().userResized(0, 0, 10335, 8000);
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 0");

  for (const auto& [size, failure] : {std::pair{"high", TypeMismatch}, {"1e39", Overflow}}) {
    desktop->settings[{"Start", "Breite"}] = size;
    restart();
    EXPECT_EQ(desktop->failure()->number, failure);
  }
}

TEST_F(MainWindow, HelpPrinterAndEndGoThroughTheDoor) {
  start();
  click(frame().Menü5a);
  EXPECT_EQ(desktop->opened, Texts{folder.file("nautrel.rtf")});
  desktop->answerPrinter(false).answerPrinter(true);
  click(frame().Menü1f);
  click(frame().Menü1f);
  desktop->answerMenu("Menü6a");
  frame().MDIForm_MouseUp(2);
  EXPECT_TRUE(app->loaded(2));
  frame().MDIForm_MouseUp(1);
  click(frame().Menü1e);
  EXPECT_TRUE(desktop->ended());
  click(app->Form2().Command3);
  EXPECT_TRUE(app->loaded(2)) << "nothing runs after the end";
}

TEST_F(MainWindow, AFaultOfTheFileEndsTheProgramAndNothingIsWritten) {
  const auto path = folder.file("Logbuch.mdb");
  addDives(1, 2);
  start();
  remove(path.c_str());
  click(frame().Menü3a);
  EXPECT_EQ(desktop->failure()->number, DatabaseNotFound) << "inside a load, whatever the rule";
  for (const std::string content : {"", "This is a letter and no logbook. ........"}) {
    remove(path.c_str());
    if (!content.empty()) folder.write("Logbuch.mdb", content);
    restart();
    EXPECT_EQ(desktop->failure()->number, content.empty() ? DatabaseNotFound : UnrecognizedFormat);
    EXPECT_EQ(std::ifstream(path).good(), !content.empty());
    EXPECT_EQ(readFile(path), content);
  }
}

}  // namespace
}  // namespace nautrel
