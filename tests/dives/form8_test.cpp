// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/Form8.h"

#include "support/logbook.h"
#include "support/repaints.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

class SortLogbook : public LogbookTest {
 protected:
  Form8& open() {
    startAt(&MDIForm1::Menü1d);
    return app->Form8();
  }
  void addUnfilled(int first, int last) {
    Workspace workspace;
    auto rows = workspace.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset("Logbuch", {"Nr"});
    for (int number = first; number <= last; ++number) {
      rows.AddNew();
      rows.setField("Nr", number);
      rows.Update();
    }
  }
};

TEST_F(SortLogbook, TheStartNumberIsComparedAsText) {
  const struct {
    int dives;
    const char *start, *refusal;  // null: the question comes
  } cases[] = {{2, "", nullptr},      {1001, "9000", "9000"},  {1001, "8999", nullptr},
               {8000, "300", "2001"}, {8000, "1500", nullptr}, {9999, "1", nullptr},
               {9999, "2", "2"}};
  addUnfilled(1, 2);
  open();
  for (int before = 2; const auto& [dives, start, refusal] : cases) {
    addUnfilled(before + 1, dives);
    before = dives;
    click(app->MDIForm1().Menü1d);
    auto& form = app->Form8();
    clear(form.Text1);
    type(form.Text1, start);
    if (refusal == nullptr) desktop->answer(kNo);
    click(form.Command1);
    EXPECT_EQ(desktop->texts(),
              Texts{refusal == nullptr
                        ? std::string("Renumber all dives?")
                        : std::string("The first dive number must be lower than ") + refusal});
    close(form);
  }
  EXPECT_EQ(column("Nr").front(), "1");
}

TEST_F(SortLogbook, GivesTheDivesNewNumbersInStoredOrderOrLeavesThem) {
  for (const int number : {7, 7, 3, 20}) add(someDive(number));
  auto& form = open();
  clear(form.Text1);
  desktop->answer(kNo);
  click(form.Command1);
  EXPECT_EQ(form.Text1.text(), "1") << "where an empty box starts";
  EXPECT_EQ(desktop->messages(), (std::vector<Shown>{{"Renumber all dives?", 292, "1, 2, 3,..."}}));
  EXPECT_EQ(column("Nr"), (Texts{"7", "7", "3", "20"}));

  clear(form.Text1);
  type(form.Text1, "500");
  desktop->answer(kYes);
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), (Texts{"Renumber all dives?", "Ready!"}));
  EXPECT_EQ(column("Nr"), (Texts{"500", "501", "502", "503"}));
  EXPECT_EQ(column("Ort"), (Texts{"Ort 7", "Ort 7", "Ort 3", "Ort 20"}));
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 4 (500 to 503)");
  EXPECT_TRUE(form.visible());
  click(form.Command2);
  EXPECT_FALSE(app->loaded(8));
}

TEST_F(SortLogbook, ShowsItsProgressWhileItRunsAndTheStatusBarAfterwards) {
  addDives(1, 3);
  Texts seen;
  Repaints looks([&](Control& control) {
    const auto& bar = dynamic_cast<ProgressBar&>(control);
    const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
    seen.push_back(bar.shows() ? number(bar.Value()) + "/" + number(bar.Max()) : "hidden");
    if (seen.size() == 1) addDives(4, 4);  // by another program
  });
  app->setLooks(&looks);
  auto& form = open();
  auto& frame = app->MDIForm1();
  int pointerAtReady = -1;
  desktop->answer(kYes);
  desktop->whileBoxIsOpen = [&] { pointerAtReady = frame.MousePointer(); };
  click(form.Command1);
  EXPECT_EQ(seen, (Texts{"1/3", "2/3", "3/3", "3/3", "0/3"}));
  EXPECT_EQ(pointerAtReady, 0);
  EXPECT_FALSE(frame.Picture1.visible());
  EXPECT_TRUE(frame.StatusBar1.visible());
  app.reset();
}

}  // namespace
}  // namespace nautrel
