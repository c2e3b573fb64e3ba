#include "dives/Form8.h"

#include "support/logbook.h"
#include "support/repaints.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kNotSorted =
    "Attention! The dives are not sorted correctly. Please select 'Sort logbook'. "
    "Otherwise there could be program errors.";

class SortLogbook : public LogbookTest {
 protected:
  Form8& open() {
    start();
    click(app->MDIForm1().Menü1d);
    return app->Form8();
  }
  void addUnfilled(int count) {
    Workspace workspace;
    auto rows = workspace.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset("Logbuch", {"Nr"});
    for (int number = 1; number <= count; ++number) {
      rows.AddNew();
      rows.setField("Nr", number);
      rows.Update();
    }
  }
};

struct StartCase {
  int dives;
  const char* start;
  const char* refusal;  // null: the question comes
};

class StartNumber : public SortLogbook, public ::testing::WithParamInterface<StartCase> {};

TEST_P(StartNumber, IsComparedAsText) {
  addUnfilled(GetParam().dives);
  auto& form = open();
  clear(form.Text1);
  type(form.Text1, GetParam().start);
  if (GetParam().refusal == nullptr) desktop->answer(kNo);
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), Texts{GetParam().refusal == nullptr
                                        ? std::string("Renumber all dives?")
                                        : std::string("The first dive number must be lower than ") +
                                              GetParam().refusal});
  EXPECT_EQ(column("Nr").front(), "1");
}

INSTANTIATE_TEST_SUITE_P(Starts, StartNumber,
                         ::testing::Values(StartCase{9999, "1", nullptr}, StartCase{9999, "2", "2"},
                                           StartCase{1001, "9000", "9000"},
                                           StartCase{1001, "8999", nullptr},
                                           StartCase{8000, "300", "2001"},
                                           StartCase{8000, "1500", nullptr},
                                           StartCase{2, "", nullptr}));

TEST_F(SortLogbook, GivesTheDivesNewNumbersInStoredOrder) {
  for (const int number : {7, 7, 3, 20}) add(someDive(number));
  auto& form = open();
  desktop->messages();
  clear(form.Text1);
  type(form.Text1, "500");
  desktop->answer(kYes);
  click(form.Command1);
  EXPECT_EQ(desktop->messages(),
            (std::vector<Shown>{{"Renumber all dives?", 292, "500, 501, 502,..."}, {"Ready!"}}));
  EXPECT_EQ(rows("Logbuch", {"Nr", "Ort"}),
            (std::vector<Texts>{
                {"500", "Ort 7"}, {"501", "Ort 7"}, {"502", "Ort 3"}, {"503", "Ort 20"}}));
  EXPECT_EQ(status(), "<Logbuch.mdb> Dives Logged: 4 (500 to 503)");
  EXPECT_TRUE(form.visible());
  click(form.Command2);
  EXPECT_FALSE(app->loaded(8));
}

TEST_F(SortLogbook, NoLeavesTheLogbookAndAnEmptyBoxStartsAtOne) {
  addDives(301, 303);
  auto& form = open();
  clear(form.Text1);
  desktop->answer(kNo);
  click(form.Command1);
  EXPECT_EQ(form.Text1.text(), "1");
  EXPECT_EQ(desktop->messages(), (std::vector<Shown>{{"Renumber all dives?", 292, "1, 2, 3,..."}}));
  EXPECT_EQ(column("Nr"), (Texts{"301", "302", "303"}));
}

TEST_F(SortLogbook, ShowsItsProgressWhileItRunsAndTheStatusBarAfterwards) {
  addDives(1, 3);
  Texts seen;
  Repaints looks([&](Control& control) {
    const auto& bar = dynamic_cast<ProgressBar&>(control);
    const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
    seen.push_back(bar.shows() ? number(bar.Value()) + "/" + number(bar.Max()) : "hidden");
  });
  app->setLooks(&looks);
  auto& form = open();
  auto& frame = app->MDIForm1();
  int pointerAtReady = -1;
  desktop->answer(kYes);
  desktop->whileBoxIsOpen = [&] { pointerAtReady = frame.MousePointer(); };
  click(form.Command1);
  EXPECT_EQ(seen, (Texts{"1/3", "2/3", "3/3", "0/3"}));
  EXPECT_EQ(pointerAtReady, 0);
  EXPECT_FALSE(frame.Picture1.visible());
  EXPECT_TRUE(frame.StatusBar1.visible());
  app.reset();
}

TEST_F(SortLogbook, TheBoxTakesWholeNumbersFromOneOn) {
  addDives(1, 1);
  auto& form = open();
  const auto typed = [&](const char* keys) {
    clear(form.Text1);
    type(form.Text1, keys);
    return form.Text1.text();
  };
  EXPECT_EQ(typed("12"), "12");
  EXPECT_EQ(typed("0"), "");
  EXPECT_EQ(typed("1a"), "");
  EXPECT_EQ(typed("0012"), "12");
  clear(form.Text1);
  paste(form.Text1, "007");
  EXPECT_EQ(form.Text1.text(), "7");
}

TEST_F(SortLogbook, TheSpinButtonStopsAtEitherEnd) {
  addDives(1, 1);
  auto& form = open();
  spinDown(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "1");
  spinUp(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "2");
  clear(form.Text1);
  spinUp(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "2");
  form.Text1.setText("9998");
  spinUp(form.SpinButton1);
  spinUp(form.SpinButton1);
  EXPECT_EQ(form.Text1.text(), "9999");
}

TEST_F(SortLogbook, MendsWhatTheStartWarnsOf) {
  for (const int number : {1, 2, 5}) add(someDive(number));
  start();
  EXPECT_EQ(desktop->texts(), Texts{kNotSorted});
  click(app->MDIForm1().Menü1d);
  desktop->answer(kYes);
  click(app->Form8().Command1);
  restart();
  EXPECT_EQ(desktop->texts(), Texts{});
  EXPECT_EQ(column("Nr"), (Texts{"1", "2", "3"}));
}

}  // namespace
}  // namespace nautrel
