// SPDX-License-Identifier: GPL-2.0-or-later
#include <filesystem>

#include "store/lock.h"
#include "window_test.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;
using testing::IsSubstring;
using Texts = std::vector<std::string>;

/// A list of another program: one dive as new as can be, one that repeats the first stored dive,
/// one without a depth.
constexpr auto kForeign =
    "Date,Duration (min),Max Depth (ft),Site\n"
    "2026-05-01,30,50,Teti\n"
    "2001-03-05,45,41,Reef\n"
    "2026-05-02,20,,Wreck\n";

struct TakeOver : WindowTest {
  TakeOverPage& page = form.In;
};

TEST_F(TakeOver, ShowsWhatBecomesOfEachDiveAndDoesWhatIsTicked) {
  addDives(2);
  choose("log.csv", kForeign);
  EXPECT_EQ(fates(), (Texts{"duplicate of dive 1", "+new, dive 3", "left out: it has no depth"}));
  EXPECT_EQ(page.Summary.caption(),
            "3 dives in the file: 1 to be taken over, 1 in the logbook already, 1 left out.");
  EXPECT_EQ(page.Dives.row(1).cells,
            (Texts{"", "2", "5/1/2026", "Teti", "50 ft", "30 min", "new, dive 3"}));
  page.Dives.userTick(2);  // cannot be taken
  page.Dives.userTick(0);  // is insisted on
  page.Dives.userTick(1);  // is not wanted
  EXPECT_EQ(fates(), (Texts{"+taken all the same, dive 3", "left out: it is not wanted",
                            "left out: it has no depth"}));
  page.Dives.userTick(1);
  EXPECT_EQ(page.Details.text(), "Line 2: taken as dive 4\n");
  EXPECT_EQ(numbers().size(), 2U);

  click(page.TakeOver);
  EXPECT_EQ(numbers(), (Texts{"1", "2", "3", "4"}));
  EXPECT_EQ(page.Summary.caption(), "2 dives taken over.");
  EXPECT_PRED_FORMAT2(IsSubstring, "Line 4: left out, it has no depth", page.Report.text());
  EXPECT_FALSE(page.TakeOver.enabled());
  desktop.answerFile(book.folder.file("said"));
  click(page.SaveReport);
  EXPECT_EQ(readFile(book.folder.file("said.txt")), page.Report.text());
}

TEST_F(TakeOver, TicksAllAndNoneAndTellsWhyNothingCanBeDone) {
  EXPECT_EQ(page.TakeOver.hint(), "Choose a file first.");
  choose("log.csv", kForeign);
  click(page.TickNone);
  EXPECT_EQ(
      page.TakeOver.hint(),
      "None of the dives can be taken: the one of line 3 is left out since it is not wanted.");
  click(page.TickAll);
  EXPECT_EQ(page.TakeOver.hint(), "");
  EXPECT_TRUE(page.TakeOver.enabled());
  EXPECT_EQ(page.TakeCard.hint(), "The file holds no diver's card.");
}

struct Ask {
  const char* what;
  const char* content;
  Frame TakeOverPage::*frame;
  OptionButton TakeOverPage::*answer;
  const char* question;
  const char* option;
  const char* becomes;  // date and time of the first dive
};

TEST_F(TakeOver, AsksWhatTheFileLeavesOpenWithAnExampleFromIt) {
  const Ask asks[] = {
      {"dates", "Date,Duration (min),Max Depth (ft)\n03/04/2020,30,50\n", &TakeOverPage::AskDates,
       &TakeOverPage::DayFirst, "'03/04/2020' in 'Date': what comes first?", "the &day: 3 April",
       "4/3/2020 50 ft 30 min"},
      {"the other answer", "Date,Duration (min),Max Depth (ft)\n03/04/2020,30,50\n",
       &TakeOverPage::AskDates, &TakeOverPage::MonthFirst,
       "'03/04/2020' in 'Date': what comes first?", "the &month: 4 March", "3/4/2020 50 ft 30 min"},
      {"durations", "Date,Duration,Max Depth (ft)\n2020-04-03,0:45,50\n",
       &TakeOverPage::AskDurations, &TakeOverPage::HoursMinutes,
       "'0:45' in 'Duration': what is it?", "&hours and minutes: 0 h 45 min",
       "4/3/2020 50 ft 45 min"},
      {"units", "Date,Duration (min),Max Depth\n2020-04-03,30,50\n", &TakeOverPage::AskUnits,
       &TakeOverPage::Imperial, "'50' in 'Max Depth': in which units?",
       "&imperial (ft, psi, lb, cu ft)", "4/3/2020 50 ft 30 min"},
  };
  for (const auto& ask : asks) {
    SCOPED_TRACE(ask.what);
    choose("open.csv", ask.content);
    EXPECT_TRUE((page.*ask.frame).visible());
    EXPECT_EQ(page.TakeOver.hint(), "Answer what is asked above first.");
    EXPECT_EQ((page.*ask.frame).form().control((page.*ask.frame).name()), &(page.*ask.frame));
    EXPECT_EQ((page.*ask.answer).caption(), ask.option);
    EXPECT_EQ((std::vector{page.DatesExample.caption(), page.DurationsExample.caption(),
                           page.UnitsExample.caption()})
                  [static_cast<std::size_t>(ask.frame == &TakeOverPage::AskDates       ? 0
                                            : ask.frame == &TakeOverPage::AskDurations ? 1
                                                                                       : 2)],
              ask.question);
    click(page.*ask.answer);
    ASSERT_EQ(page.Dives.rowCount(), 1);
    const auto cells = page.Dives.row(0).cells;
    EXPECT_EQ(cells[2] + " " + cells[4] + " " + cells[5], ask.becomes);
    EXPECT_TRUE(page.TakeOver.enabled());
  }
}

TEST_F(TakeOver, HasNoRowOfThePlanBeforeWhileItMakesAnother) {
  choose("open.csv", "Date,Duration (min),Max Depth (ft)\n03/04/2020,30,50\n");
  click(page.DayFirst);
  // The screen goes on painting what the table holds.
  desktop.whileBoxIsOpen = [this] { EXPECT_EQ(fates(), Texts{}); };
  click(page.MonthFirst);
  EXPECT_EQ(page.Dives.rowCount(), 1);
}

TEST_F(TakeOver, IsRefusedWhileAnotherHasTheLogbookAndStoresNothingWhenCancelled) {
  choose("log.csv", kForeign);
  {
    const LogbookLock other(book.path);
    click(page.TakeOver);
    EXPECT_EQ(desktop.texts(), Texts{std::string(kLogbookInUse)});
  }
  desktop.working = [](std::size_t done, std::size_t) { return done < 1; };
  click(page.TakeOver);
  EXPECT_EQ(desktop.texts(), Texts{});
  EXPECT_EQ(numbers(), Texts{});
  desktop.working = nullptr;
  click(page.TakeOver);
  EXPECT_EQ(numbers(), (Texts{"1", "2"}));
}

TEST_F(TakeOver, AFileThatCannotBeReadLeavesTheOneBeforeAndClosingAsksForIt) {
  choose("log.csv", kForeign);
  form.userDrop(book.folder.write("broken.uddf", "<uddf>"));
  EXPECT_EQ(desktop.texts().size(), 1U);
  EXPECT_EQ(page.FileName.text(), book.folder.file("log.csv"));
  EXPECT_EQ(page.Dives.rowCount(), 3);
  desktop.answer(kNo);
  press(form, Key::Escape);
  EXPECT_FALSE(desktop.ended());
  click(page.TakeOver);
  press(form, Key::Escape);
  EXPECT_TRUE(desktop.ended());
}

TEST_F(TakeOver, CardAndEquipmentComeIfTheyAreWantedAndThereIsRoomForThem) {
  Book other;
  TextRow card(Karte::Count);
  card[Karte::Nachname] = "Diver";
  other.setCard(card);
  TextRow piece(Stück::Count);
  piece[Stück::Gegenstand] = "Fins";
  other.addPiece(piece);
  const auto file = other.exported("out.uddf", {});
  choose("in.uddf", file);
  EXPECT_TRUE(page.TakeCard.enabled());
  click(page.TakeCard);
  click(page.TakeOver);
  EXPECT_EQ(book.card()[Karte::Nachname], "Diver");
  EXPECT_EQ(book.equipment().size(), 1U);
  choose("again.uddf", file);
  EXPECT_EQ(page.TakeCard.hint(), "Your card is filled and stays as it is.");
}

struct GiveOut : WindowTest {
  GiveOut() { nautrel::choose(form.Pages, 1); }
  GiveOutPage& page = form.Out;
};

TEST_F(GiveOut, SaysBeforeWhatIsLostAndWritesTheRange) {
  addDives(5);
  EXPECT_PRED_FORMAT2(IsSubstring, "visibility", page.CannotCarry.caption());
  click(page.Csv);
  EXPECT_PRED_FORMAT2(IsSubstring, "CSV holds dives alone", page.CannotCarry.caption());
  EXPECT_EQ(page.WithCard.hint(), "CSV holds dives alone.");
  type(page.FromNumber, "2");
  type(page.ToNumber, "4");
  EXPECT_TRUE(page.SomeDives.on());
  desktop.answerFile(book.folder.file("some"));
  click(page.WriteFile);
  EXPECT_PRED_FORMAT2(IsSubstring, "3 dives written to", page.Written.text());
  const auto text = readFile(book.folder.file("some.csv"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 4);
}

TEST_F(GiveOut, NamesTheBoxThatIsWrongAndNeverWritesOverTheProgramsFiles) {
  addDives(1);
  click(page.SomeDives);
  for (const auto& [from, to, says] : {std::tuple{"", "", "Please enter from which"},
                                       {"x", "", "'x' is no dive number."},
                                       {"5", "4", "The first number is behind the last one."}}) {
    clear(page.FromNumber);
    type(page.FromNumber, from);
    clear(page.ToNumber);
    type(page.ToNumber, to);
    click(page.WriteFile);
    EXPECT_PRED_FORMAT2(IsSubstring, says, desktop.texts().at(0));
    EXPECT_EQ(form.activeControl(), &page.FromNumber);
  }
  click(page.AllDives);
  const auto link = book.folder.file("dives.csv");
  fs::create_hard_link(book.path, link);
  desktop.answerFile(link).answerFile({});
  click(page.Csv);
  click(page.WriteFile);
  EXPECT_EQ(desktop.texts(),
            Texts{"'" + link + "' belongs to Nautrel itself. Please choose another name."});
  EXPECT_EQ(numbers().size(), 1U);
}

struct LookAfter : WindowTest {
  LookAfter() { nautrel::choose(form.Pages, 2); }
  LookAfterPage& page = form.Care;
};

TEST_F(LookAfter, ChecksAndListsWhatItFinds) {
  addDives(2);
  click(page.CheckNow);
  EXPECT_EQ(page.CheckResult.caption(), "Nothing is wrong with the logbook.");
  book.add(plainDive("7", "deep"));
  book.workspace.settle();
  click(page.CheckNow);
  EXPECT_EQ(page.Findings.lines(),
            (Texts{"Dive 7: it follows dive 2.", "Dive 7: Max depth 'deep' is no number."}));
  EXPECT_EQ(page.CheckResult.caption(), "2 findings:");
}

TEST_F(LookAfter, PutsACopyBackAfterShowingBothLogbooks) {
  addDives(2);
  const TemporaryFolder copies;
  desktop.answerFile(copies.path());
  click(page.MakeCopy);
  const auto copy = fs::directory_iterator(copies.path())->path().string();
  EXPECT_PRED_FORMAT2(IsSubstring, copy, page.CopyResult.caption());
  EXPECT_EQ(page.PutBack.hint(), "Choose a copy first.");
  book.add(plainDive("3"));
  book.workspace.settle();
  page.load();
  desktop.answerFile(book.folder.write("no.mdb", "none"));
  click(page.ChooseCopy);
  EXPECT_EQ(page.PutBack.hint(), "This file is no logbook.");
  desktop.answerFile(copy);
  click(page.ChooseCopy);
  EXPECT_EQ(page.NowDives.caption(), "3 dives");
  EXPECT_EQ(page.CopyDives.caption(), "2 dives");
  desktop.answer(kNo);
  click(page.PutBack);
  EXPECT_EQ(numbers().size(), 3U);
  desktop.answer(kYes);
  click(page.PutBack);
  EXPECT_PRED_FORMAT2(IsSubstring, "The copy: 2 dives, ", desktop.texts().at(0));
  EXPECT_EQ(page.NowDives.caption(), "2 dives");
}

}  // namespace
}  // namespace nautrel::exchange
