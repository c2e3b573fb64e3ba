// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/Form6.h"

#include <filesystem>

#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "evaluation/evaluation_test.h"
#include "support/unwritable.h"

namespace nautrel {
namespace {

// Figures too wide for their column send the unit to the next line.
constexpr const char* kWideFigures = R"(Statistic printed: 05.03.2001 14:07:09 über 3 Tauchgänge

General:
~~~~~~~~~~~~
whole divetime:            16668,02
                                 hours
middle divetime:           333360,33
                                 min/dive
longest dive:              1000000
                                 min      by dive-#:      9998
shortest dive:             40,5  min      by dive-#:      9997
max. depth:                151   ft          by dive-#:   9998
min. depth:                -1    ft          by dive-#:   9999
middle depth:              60,17 ft/dive

Depth:
~~~~~~~
 0 - 30 ft:   0   =  0 %
31 - 60 ft:   1   =  33 %
61 - 90 ft:   0   =  0 %
91 - 120 ft:  0   =  0 %
121 - 150 ft: 0   =  0 %
     > 150 ft:1   =  33 %

Other:
~~~~~~~~~~
Sweetwat.:    1   =  33 %
Saltwat.:     2   =  67 %

from boat:    2   =  67 %
from shore:   1   =  33 %

rep-dive:     1   =  33 %
deco-stop:    1   =  33 %
)";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

std::string asBytes(const std::string& text) {
  return replaced(replaced(replaced(text, "ü", "\xFC"), "ä", "\xE4"), "\n", "\r\n");
}

Dive dive(int number, const char* minutes, const char* feet) {
  auto dive = someDive(number);
  dive["Zeit"] = minutes;
  dive["Tiefe"] = feet;
  return dive;
}

Dive with(Dive dive, const std::vector<std::string>& flags) {
  for (const auto& flag : flags) dive[flag] = true;
  return dive;
}

class Statistic : public EvaluationTest {
 protected:
  Form6& open() {
    startAt(&MDIForm1::Menü4a);
    return app->Form6();
  }
  std::string chosen() const { return folder.file("chosen.txt"); }
  void addWideFigures() {
    desktop->places = commaLocale();
    add(with(dive(9997, "40,5", "30,5"), {"Salz", "Boot"}));
    add(with(dive(9998, "1000000", "151"), {"Süß", "Ufer", "Rep", "Deco"}));
    add(with(dive(9999, "40,5", "-1"), {"Salz", "Boot"}));
  }
};

TEST_F(Statistic, ShowsWhatIsCountedWhenItOpens) {
  add(with(dive(5, "30", "45"), {"Salz", "Boot"}));
  add(with(dive(6, "50", "100"), {"Süß", "Ufer", "Rep", "Deco"}));
  add(with(dive(7, "40", "20"), {"Salz", "Boot"}));
  auto& form = open();
  EXPECT_EQ(form.caption(), "Statistic over 3 dives (5 to 7)");
  const auto shown = [&](std::initializer_list<int> labels) {
    std::string all;
    for (const int number : labels)
      all += dynamic_cast<Label*>(form.control("Label" + std::to_string(number)))->caption() + "|";
    return all;
  };
  EXPECT_EQ(shown({8, 9, 14, 10, 11, 12, 13}), "2.|40.|55.|50|30|100|20|");
  EXPECT_EQ(shown({32, 33, 34, 35, 36, 37}), "1|1|0|1|0|0|") << "depths";
  EXPECT_EQ(shown({46, 47, 48, 49, 50, 51}), "33 %|33 %|0 %|33 %|0 %|0 %|");
  EXPECT_EQ(shown({40, 41, 59, 60, 44, 45}), "1|2|2|1|1|1|") << "the rest";
  EXPECT_EQ(shown({52, 53, 61, 62, 54, 55}), "33 %|67 %|67 %|33 %|33 %|33 %|");
  EXPECT_EQ(form.Command4.caption() + form.Command5.caption() + form.Command6.caption() +
                form.Command7.caption(),
            "6567");
  EXPECT_EQ(app->Modul1().LetzteNummer, Value("7"));
  expectAtRest();

  add(dive(8, "600", "300"));
  click(app->MDIForm1().Menü4a);
  EXPECT_EQ(form.Label10.caption(), "50") << "an open statistic keeps its figures";
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(6));
}

TEST_F(Statistic, SavedOverALongerFileAndNotAtAllWhereThatFailsOrIsCancelled) {
  addWideFigures();
  folder.write("chosen.txt", std::string(5000, 'x'));
  desktop->answerFile(chosen()).answer(kYes);
  auto& form = open();
  click(form.Command3);
  EXPECT_EQ(readFile(chosen()), asBytes(kWideFigures));
  const auto& dialog = desktop->dialogs.front();
  EXPECT_EQ(dialog.title, "Save statistic to");
  EXPECT_EQ(dialog.filter, "*.*|*.*");
  EXPECT_EQ(dialog.fileName, "Statistic.txt");
  EXPECT_EQ(dialog.flags, 6);

  folder.write("chosen.txt", "edited");
  desktop->messages();
  desktop->answerFile({});
  click(form.Command3);
  EXPECT_EQ(readFile(chosen()), "edited");
  NOT_ON_WINDOWS(kToldBefore);
  const auto broken = unwritable(folder.file("socket"));
  desktop->answerFile(broken).answer(kYes);
  click(form.Command3);
  EXPECT_EQ(desktop->texts(), std::vector<std::string>{
                                  "'" + broken + "' already exists. Do you want to replace it?"});
  EXPECT_EQ(readFile(chosen()), "edited");
  EXPECT_TRUE(app->loaded(6));
}

TEST_F(Statistic, TheOlderWayOfPrintingSendsTheGermanText) {
  addWideFigures();
  auto german = replaced(kWideFigures, "Statistic printed: ", "Statistik gedruckt am: ");
  german = replaced(german, "General:", "Allgemeines:");
  german = replaced(german, "Depth:", "Tiefen:");
  german = replaced(german, "Other:", "Sonstiges:");
  auto& form = open();
  app->handle([&] { form.Drucken(); });
  EXPECT_EQ(desktop->printed, std::vector<std::string>{replaced(german, "\n", "\r\n")});
  EXPECT_FALSE(std::filesystem::exists(folder.file("Statistik.§$§")));
}

TEST_F(Statistic, StoredWhateverTheAnswerAndPrintedOnYes) {
  addWideFigures();
  auto& form = open();
  desktop->answer(kNo);
  click(form.Command2);
  EXPECT_EQ(desktop->messages(), (std::vector<Shown>{{"Print now?", kAskNo, "Print statistic"}}));
  EXPECT_EQ(rows("Statistik",
                 {"Zeit_ges", "Zeit_durch", "Längster", "Kürzester", "Tiefe_max", "Tiefe_min",
                  "Tiefe_durch", "0_bis_10", "11_bis_20", "21_bis_30", "31_bis_40", "41_bis_50",
                  "größer_50", "Süsswasser", "Salzwasser", "Boot", "Ufer", "Rep", "Deco"}),
            (std::vector<std::vector<std::string>>{
                {"16668,02 hours", "333360,33 min/dive", "1000000 min by dive-#: 9998",
                 "40,5 min by dive-#: 9997", "151 ft by dive-#: 9998", "-1 ft by dive-#: 9999",
                 "60,17 ft/dive", "0 Dives  =  0 %", "1 Dives  =  33 %", "0 Dives  =  0 %",
                 "0 Dives  =  0 %", "0 Dives  =  0 %", "1 Dives  =  33 %", "1 Dives  =  33 %",
                 "2 Dives  =  67 %", "2 Dives  =  67 %", "1 Dives  =  33 %", "1 Dives  =  33 %",
                 "1 Dives  =  33 %"}}));
  EXPECT_TRUE(desktop->reports.empty());

  desktop->answer(kYes);
  click(form.Command2);
  ASSERT_EQ(desktop->reports.size(), 1u);
  EXPECT_EQ(desktop->reports.front().templatePath, folder.file("Statistik.rpt"));
  EXPECT_EQ(desktop->reports.front().destination, ReportDestination::Printer);
}

TEST_F(Statistic, WithoutItsRowItCannotBeStored) {
  add(dive(7, "60", "30"));
  deleteElsewhere("Statistik", 0);
  click(open().Command2);
  ASSERT_TRUE(desktop->failure());
  EXPECT_EQ(desktop->failure()->number, NoCurrentRecord);
}

TEST_F(Statistic, ANumberButtonShowsItsDive) {
  add(dive(5, "30", "45"));
  add(dive(6, "50", "20"));
  add(dive(7, "20", "100"));
  auto& form = open();
  const std::pair<Button*, const char*> buttons[] = {
      {&form.Command4, "6"}, {&form.Command5, "7"}, {&form.Command6, "7"}, {&form.Command7, "6"}};
  for (const auto& [button, number] : buttons) {
    desktop->answerMenu("Menü8a");
    click(*button);
    EXPECT_EQ(app->Form3().Text1.text(), number) << button->name();
    EXPECT_EQ(app->Form3().List1.text(), number) << button->name();
    EXPECT_EQ(form.activeControl(), &form.Command1);
    EXPECT_EQ(desktop->popups.back(), button->name());
  }
  EXPECT_TRUE(app->loaded(6));
  EXPECT_EQ(form.Left(), 0);
  EXPECT_EQ(form.Top(), 0);
}

TEST_F(Statistic, ItsDiveIsEditedOrDeletedInAWindowOfItsOwn) {
  addDives(5, 7);
  add(dive(8, "90", "20"));
  auto& form = open();
  desktop->answerMenu("Menü8b");
  click(form.Command4);
  EXPECT_EQ(app->Form4().Text1.text(), "8");
  desktop->answerMenu("Menü8c");
  click(form.Command4);
  EXPECT_FALSE(app->loaded(4));
  EXPECT_EQ(app->Form5().Data1.Recordset().Fields("Nr"), Value("8"));
  desktop->answer(kYes);
  click(app->Form5().Command1);
  form.Command4.setCaption("2");
  desktop->answerMenu("Menü8c");
  click(form.Command4);
  EXPECT_EQ(app->Form5().Text1.text(), "2") << "counted from the row's new number";
  desktop->answerMenu("Menü8a");
  click(form.Command4);
  EXPECT_FALSE(app->loaded(5));
  EXPECT_TRUE(app->loaded(3));
  EXPECT_TRUE(app->loaded(6));
}

TEST_F(Statistic, AButtonWithoutADiveLeavesTheFirstOneAndTheMenuMayBeLeftWithoutAChoice) {
  add(dive(5, "1000", "30"));
  auto& form = open();
  const auto left = form.Left();
  desktop->answerMenu("");
  click(form.Command6);
  EXPECT_EQ(app->Modul1().StatistikKnopf, Value("6"));
  EXPECT_EQ(form.Left(), left);
  EXPECT_FALSE(app->loaded(3));
  ASSERT_EQ(form.Command5.caption(), "0");
  desktop->answerMenu("Menü8a");
  click(form.Command5);
  EXPECT_EQ(app->Form3().Text1.text(), "5");
  EXPECT_FALSE(app->Modul1().ListeNachziehen);
}

}  // namespace
}  // namespace nautrel
