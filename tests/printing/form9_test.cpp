// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/Form9.h"

#include <filesystem>

#include "support/logbook.h"
#include "support/unwritable.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class PrintDiveList : public LogbookTest {
 protected:
  Form9& open() {
    start();
    click(app->MDIForm1().Menü1a);
    return app->Form9();
  }
  Form9& openWith(int first, int last) {
    addDives(first, last);
    return open();
  }
};

TEST_F(PrintDiveList, RunsTheReportOverTheRangeAndPrintsOnlyAfterAYes) {
  auto& form = openWith(1, 25);
  EXPECT_EQ((Texts{form.Text1.text(), form.Text2.text(), form.Text3.text()}),
            (Texts{"1", "25", "1"}));
  form.Text1.setText("3");
  form.Text2.setText("9");
  form.Text3.setText("");
  click(form.Command1);
  ASSERT_EQ(desktop->reports.size(), 1U);
  const auto job = desktop->reports.front();
  EXPECT_EQ(job.templatePath, folder.file("Liste.rpt"));
  EXPECT_EQ(job.selectionFormula, "ToNumber ({Logbuch.Nr}) in 3 to 9");
  EXPECT_EQ(job.windowTitle, "Nautrel 2.0 print dive list");
  EXPECT_EQ(job.destination, ReportDestination::Preview);

  desktop->answer(kNo).answer(kYes);
  click(form.Command2);
  EXPECT_EQ(desktop->reports.size(), 1U);
  EXPECT_EQ(form.Text3.text(), "1");
  click(form.Command2);
  ASSERT_EQ(desktop->reports.size(), 2U);
  EXPECT_EQ(desktop->reports.back().destination, ReportDestination::Printer);
  const Shown question{"Print list now?", 292, "Print dive list (3 to 9)"};
  EXPECT_EQ(desktop->messages(), (std::vector<Shown>{question, question}));
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(9));
}

const char* const kSaved = ". Deactivitate in your texteditor 'wordwrap' to see best result.";

class ListFile : public PrintDiveList {
 protected:
  std::string save(Form9& form, const char* first, const char* last) {
    form.Text1.setText(first);
    form.Text2.setText(last);
    return save(form);
  }
  std::string save(Form9& form) { return save(form, folder.file("list.txt")); }
  std::string save(Form9& form, const std::string& path) {
    desktop->answerFile(path);
    click(form.Command3);
    EXPECT_EQ(desktop->texts(), Texts{"The list was saved as " + path + kSaved});
    return readFile(path);
  }
  static std::string head(const std::string& date) {
    return "Nautrel 2.0 List - printed: " + date +
           "\r\n\r\n"
           "#      Country               City / Island         Diveplace             Date        "
           "Time    Depth   Buddy\r\n"
           "==================================================================================="
           "=========================================\r\n";
  }
};

TEST_F(ListFile, OneLineADive) {
  auto dive = someDive(7);
  dive["Land"] = "Ägypten";
  dive["Platz"] = "Blue Hole";
  dive["Tiefe"] = "98.5";
  dive["Buddy"] = "Zoë 🐟" + std::string(66'000, 'b');
  add(dive);
  add({{"Nr", "8"}, {"Land", ""}, {"Ort", "Malé"}, {"Jahr", "2001"}});
  EXPECT_EQ(save(open()),
            head("3/5/2001 2:07:09 PM") +
                "7      \xC4gypten               Ort 7                 Blue Hole             "
                "05.03.2001  40 min  98.5 m  Zo\xEB ?" +
                std::string(66'000, 'b') +
                "\r\n"
                "8                            Mal\xE9                  Null                  "
                "..2001       min     m      Null\r\n");
}

TEST_F(ListFile, AnItemPastItsColumnGoesOnTheNextLine) {
  desktop->places = commaLocale();
  auto dive = someDive(12);
  dive["Land"] = std::string(22, 'L');
  dive["Buddy"] = "B";
  add(dive);
  dive["Nr"] = "13";
  dive["Land"] = std::string(23, 'L');
  dive["Ort"] = "Öäü" + std::string(19, 'O');
  dive["Zeit"] = "12345";
  add(dive);
  EXPECT_EQ(save(open()),
            head("05.03.2001 14:07:09") +
                "12     LLLLLLLLLLLLLLLLLLLLLLOrt 12                P                     "
                "05.03.2001  40 min  60 m    B\r\n"
                "13     LLLLLLLLLLLLLLLLLLLLLLL\r\n"
                "                             \xD6\xE4\xFCOOOOOOOOOOOOOOOOOOOP                     "
                "05.03.2001  12345 min\r\n"
                "                                                                             "
                "                60 m    B\r\n");
}

TEST_F(ListFile, TakesTheRowsOfTheRangeByTheirPlaceAndEndsEarlyWhereOneIsMissing) {
  auto& form = openWith(1, 25);
  const auto line = [](int number) {
    const auto text = std::to_string(number);
    return text + std::string(7 - text.size(), ' ') + "Land " + text +
           std::string(17 - text.size(), ' ') + "Ort " + text + std::string(18 - text.size(), ' ') +
           "P                     05.03.2001  40 min  60 m    Null\r\n";
  };
  const auto printed = head("3/5/2001 2:07:09 PM");
  EXPECT_EQ(save(form, "12", "12"), printed + line(12));
  EXPECT_EQ(save(form, "9", "11"), printed + line(9) + line(10) + line(11));
  deleteElsewhere("Logbuch", 0);
  EXPECT_EQ(save(form, "1", "3"), printed);
  EXPECT_EQ(save(form, "3", "3"), printed + line(3));
}

TEST_F(ListFile, AsksForAFileAndReplacesItUnaskedUnlessCancelled) {
  auto& form = openWith(1, 1);
  const auto old = std::string(5000, 'x');
  folder.write("list.txt", old);
  desktop->answerFile({});
  click(form.Command3);
  EXPECT_TRUE(desktop->texts().empty());
  EXPECT_EQ(readFile(folder.file("list.txt")), old);
  EXPECT_FALSE(std::filesystem::exists(folder.file("List1.txt")));
  EXPECT_EQ(save(form).find('x'), std::string::npos);
  ASSERT_EQ(desktop->dialogs.size(), 2U);
  const auto& dialog = desktop->dialogs.front();
  EXPECT_EQ(dialog.title, "Save divelist to");
  EXPECT_EQ(dialog.fileName, "List1.txt");
  EXPECT_EQ(dialog.filter, "*.*|*.*");
  EXPECT_EQ(dialog.flags, 4);
}

TEST_F(ListFile, SaysSavedWhateverBecameOfTheFile) {
  auto& form = openWith(1, 1);
  if (!kOnWindows) {
    EXPECT_EQ(save(form, unwritable(folder.file("socket"))), "");
  }
  std::filesystem::remove(folder.file("Logbuch.mdb"));
  EXPECT_EQ(save(form), head("3/5/2001 2:07:09 PM"));
}

}  // namespace
}  // namespace nautrel
