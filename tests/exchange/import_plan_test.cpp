// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/import_plan.h"

#include "exchange/import_report.h"
#include "exchange_test.h"

namespace nautrel::exchange {
namespace {

const std::string kHead = "Dive Number,Date,Time,Duration,Max Depth (ft)\n";

/// "new number:date time..." of what is taken, "=number" of duplicates.
std::string outline(const ImportPlan& plan) {
  std::string text;
  for (const auto& dive : plan.dives()) {
    const auto& record = dive.source.record;
    if (dive.fate == Fate::Taken)
      text += std::string(record.text(Feld::Nr)) + ":" + std::string(record.text(Feld::Tiefe));
    else
      text += dive.fate == Fate::Duplicate ? "=" + *dive.duplicateOf : "-";
    text += " ";
  }
  return text;
}

TEST(ImportPlan, SortsByDateClockNumberAndOrderBehindTheLastRow) {
  Book book;
  book.add(plainDive("41"));
  const auto plan = book.planOf("a.csv", kHead +
                                             "9,2020-01-02,10:00,30,1\n"
                                             "8,2020-01-02,09:00,30,2\n"
                                             "7,2020-01-03,,30,3\n"
                                             "6,2020-01-03,,30,4\n"
                                             ",1999-01-01,,30,5\n");
  EXPECT_EQ(outline(plan), "42:5 43:2 44:1 45:4 46:3 ");
  book.import(plan);
  std::string numbers;
  for (const auto& dive : book.dives()) numbers += std::string(dive.text(Feld::Nr)) + " ";
  EXPECT_EQ(numbers, "41 42 43 44 45 46 ");
}

TEST(ImportPlan, TurnsAFileRoundThatHasTheNewestFirst) {
  Book book;
  EXPECT_EQ(outline(book.planOf("a.csv", kHead + ",2020-01-02,,30,3\n,2020-01-02,,30,2\n"
                                                 ",2020-01-01,,30,1\n")),
            "1:1 2:2 3:3 ");
}

TEST(ImportPlan, SkipsAsManyDuplicatesAsAreStored) {
  Book book;
  book.add(plainDive("7", "60.5"));
  auto plan = book.planOf("a.csv", kHead +
                                       "1,2001-03-05,,45,61\n2,2001-03-05,,45,60\n"
                                       "3,2001-03-05,,45,61.1\n4,2001-03-05,,46,60.5\n");
  EXPECT_EQ(outline(plan), "=7 8:60 9:61.1 10:60.5 ");
  EXPECT_EQ(plan.counts().duplicates, 1);
  plan.insist(0);
  plan.leaveOut(1);
  EXPECT_EQ(outline(plan), "8:61 - 9:61.1 10:60.5 ");
  const auto report = reportText(plan);
  EXPECT_NE(report.find("Line 2 (1): taken as dive 8, though it stands in the logbook as dive 7"),
            std::string::npos)
      << report;
  EXPECT_NE(report.find("Line 3 (2): left out, it is not wanted"), std::string::npos) << report;
  book.import(plan);
  EXPECT_EQ(book.dives().size(), 4U);
}

TEST(ImportPlan, ComparesDepthsToTheLastHalfFoot) {
  for (const auto& [stored, read, alike] :
       {std::tuple{"15.6", "16.1", true}, {"31.7", "32.2", true}, {"31.7", "32.3", false}}) {
    Book book;
    book.add(plainDive("7", stored));
    const auto plan = book.planOf("a.csv", kHead + "1,2001-03-05,,45," + read + "\n");
    EXPECT_EQ(plan.counts().duplicates, alike ? 1 : 0) << stored << " " << read;
  }
}

TEST(ImportPlan, TakesAFileOfOursTwiceOnlyWhereTheUserInsists) {
  Book book;
  for (const char* date : {"31.02.1999", "ab"}) {
    auto dive = plainDive("5");
    dive.texts[Feld::Tag] = date;
    dive.texts[Feld::Lang] = std::string(30, 'x');
    book.add(dive);
  }
  book.exported("a.csv", {.format = Format::Csv});
  auto plan = book.plan(book.folder.file("a.csv"));
  EXPECT_EQ(outline(plan), "=5 =5 ");
  EXPECT_FALSE(plan.asItStands());
  plan.insist(1);
  book.import(plan);
  const auto stored = book.dives();
  ASSERT_EQ(stored.size(), 3U);
  auto expected = stored[1];
  expected.texts[Feld::Nr] = "6";
  EXPECT_TRUE(stored[2] == expected);
}

TEST(ImportPlan, RefusesMoreThan9999BeforeAnythingIsWritten) {
  Book book;
  book.add(plainDive("9998"));
  const auto file = kHead + "1,2020-01-01,,30,1\n2,2020-01-01,,30,2\n";
  auto plan = book.planOf("a.csv", file);
  EXPECT_NE(plan.refusal().find("would have the number 10000"), std::string::npos);
  EXPECT_FALSE(refusal([&] { plan.execute(book.workspace, book.path); }).empty());
  plan.leaveOut(1);
  EXPECT_TRUE(plan.refusal().empty());
  book.import(plan);
  EXPECT_EQ(book.dives().size(), 2U);
}

TEST(ImportPlan, WritesNothingWhereItIsCancelledOrTheLogbookHasChanged) {
  Book book;
  const auto plan = book.planOf("a.csv", kHead + "1,2020-01-01,,30,1\n2,2020-01-01,,30,2\n");
  const auto stop = [](std::size_t done, std::size_t) { return done < 1; };
  EXPECT_FALSE(plan.execute(book.workspace, book.path, stop));
  EXPECT_TRUE(book.dives().empty());
  book.add(plainDive("1"));
  EXPECT_NE(refusal([&] { plan.execute(book.workspace, book.path); }).find("has changed since"),
            std::string::npos);
  EXPECT_EQ(book.dives().size(), 1U);
}

TEST(ImportPlan, FlagsPicturesThatLeadElsewhere) {
  Book book;
  auto dive = plainDive("1");
  dive.texts[Feld::Grafik] = "\\\\server\\x.jpg";
  book.add(dive);
  book.exported("a.uddf", {});
  const auto notes = book.plan(book.folder.file("a.uddf"), {}, {}, {}).notes();
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_NE(notes[0].find("another computer: 1"), std::string::npos);
}

}  // namespace
}  // namespace nautrel::exchange
