// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/csv_writer.h"
#include "exchange/uddf_writer.h"
#include "exchange_test.h"
#include "random_logbook.h"
#include "support/budget.h"

namespace nautrel::exchange {
namespace {

const Locale kPoint;
const Locale kComma{.decimal = ",", .grouping = "."};

std::string asUddf(const Logbook& logbook, const Locale& locale) {
  UddfWriter writer(logbook, locale);
  auto file = writer.head();
  for (const auto& dive : logbook.dives) file += writer.dive(dive);
  return file + writer.tail();
}

std::string asCsv(const Logbook& logbook, const Locale& locale) {
  const char separator = csvSeparatorFor(locale.decimal);
  std::string file = "\xEF\xBB\xBF";
  appendCsvHeader(file, separator);
  for (const auto& dive : logbook.dives) appendCsvDive(file, separator, dive);
  return file;
}

std::string described(const DiveRecord& dive) {
  std::string text;
  for (int column = 0; column < kDiveColumns; ++column)
    if (dive.texts[column])
      text += std::string(diveColumn(column).name) + "=" +
              testing::PrintToString(*dive.texts[column]) + " ";
  return text + dive.flags.to_string();
}

void expectSame(const std::vector<SourceDive>& read, const std::vector<DiveRecord>& written) {
  ASSERT_EQ(read.size(), written.size());
  for (std::size_t place = 0; place < read.size(); ++place) {
    EXPECT_TRUE(read[place].ours);
    ASSERT_TRUE(read[place].record == written[place]) << described(written[place]) << "\n"
                                                      << described(read[place].record);
  }
}

TEST(RoundTrip, LosesNothingOfAnyLogbook) {
  const auto seed = seedOfRun();
  SCOPED_TRACE("NAUTREL_SEED=" + std::to_string(seed));
  RandomLogbooks random(seed);
  TemporaryFolder folder;
  const Budget budget(700);
  for (int round = 0; budget.allows(round) && !testing::Test::HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const auto logbook = random.next();
    const auto& locale = random.below(2) == 0 ? kPoint : kComma;
    const auto uddf = openSource(folder.write("a.uddf", asUddf(logbook, locale)));
    expectSame(uddf->dives({}, locale), logbook.dives);
    EXPECT_EQ(uddf->card(), logbook.card);
    EXPECT_EQ(uddf->equipment(), logbook.equipment);
    const auto csv = openSource(folder.write("a.csv", asCsv(logbook, locale)));
    expectSame(csv->dives({}, locale), logbook.dives);
  }
}

TEST(RoundTrip, GoesIntoAnEmptyLogbookAsItStands) {
  const auto seed = seedOfRun();
  SCOPED_TRACE("NAUTREL_SEED=" + std::to_string(seed));
  RandomLogbooks random(seed);
  for (int round = 0; round < 4 && !testing::Test::HasFailure(); ++round) {
    const auto logbook = random.next();
    Book from;
    for (const auto& dive : logbook.dives) from.add(dive);
    from.setCard(logbook.card);
    for (const auto& piece : logbook.equipment) from.addPiece(piece);
    for (const auto format : {Format::Uddf, Format::Csv}) {
      const auto name = format == Format::Uddf ? "a.uddf" : "a.csv";
      from.exported(name, {.format = format});
      Book to;
      const auto plan = to.plan(from.folder.file(name));
      EXPECT_TRUE(plan.asItStands());
      EXPECT_EQ(plan.counts().taken, static_cast<int>(logbook.dives.size()));
      to.import(plan);
      EXPECT_EQ(to.dives(), logbook.dives) << "round " << round;
      if (format == Format::Csv) continue;
      if (!isBlank(logbook.card)) {
        EXPECT_EQ(to.card(), logbook.card);
      }
      EXPECT_EQ(to.equipment(), logbook.equipment);
    }
  }
}

TEST(RoundTrip, ChangesTheDecimalSignAndNothingElse) {
  Logbook logbook;
  auto dive = plainDive("1", "60.5");
  dive.texts[Feld::Blei] = "4.5";
  dive.texts[Feld::Liter] = "ca. 80";
  dive.texts[Feld::Höhe] = "3.5";
  dive.texts[Feld::Lang] = "60.5";
  logbook.dives = {dive};
  dive.texts[Feld::Tiefe] = "60,5";
  dive.texts[Feld::Blei] = "4,5";
  TemporaryFolder folder;
  for (const auto& file : {folder.write("a.uddf", asUddf(logbook, kPoint)),
                           folder.write("a.csv", asCsv(logbook, kPoint))}) {
    const auto there = openSource(file)->dives({}, kComma);
    expectSame(there, {dive});
    Logbook abroad{.dives = {there[0].record}};
    const auto back = folder.write("b.csv", asCsv(abroad, kComma));
    expectSame(openSource(back)->dives({}, kPoint), logbook.dives);
  }
}

TEST(RoundTrip, ChangesMadeElsewhereSurvive) {
  auto dive = plainDive("7", "60.5");
  dive.texts[Feld::Lang] = "one\r\ntwo";
  dive.texts[Feld::Wetter] = "sunny";
  dive.texts[Feld::Land] = "Egypt";
  dive.texts[Feld::Platz] = "A name of more than twenty";
  dive.flags[Feld::Salz] = true;
  auto file = asUddf({.dives = {dive}}, kPoint);
  const std::pair<const char*, const char*> edits[] = {
      {"<greatestdepth>18.4404<", "<greatestdepth>20.1<"},
      {"<country>Egypt<", "<country>  Sudan <"},
      {"<diveduration>2700<", "<diveduration>2700.0<"},
      {"<divenumber>7<", "<divenumber>8<"},
      {"<para>two</para>", "<para>three</para>"},
      {"<nautrel xmlns=", "<n:nautrel xmlns:n="},
      {"</nautrel>", "</n:nautrel>"},
      {"ocean-sea", "lake-quarry"},
  };
  for (const auto& [from, to] : edits) {
    ASSERT_NE(file.find(from), std::string::npos) << from;
    file.replace(file.find(from), std::string_view(from).size(), to);
  }
  TemporaryFolder folder;
  const auto read = openSource(folder.write("a.uddf", file))->dives({}, kPoint).front();
  auto expected = dive;
  expected.texts[Feld::Nr] = "8";
  expected.texts[Feld::Tiefe] = "65.9";
  expected.texts[Feld::Land] = "Sudan";
  expected.texts[Feld::Lang] = "one\nthree";
  expected.flags[Feld::Salz] = false;
  expected.flags[Feld::Süß] = true;
  EXPECT_TRUE(read.record == expected) << described(read.record);
  std::string changes;
  for (const auto& change : read.changes)
    changes += change.column + ": " + change.from + " -> " + change.to + "; ";
  EXPECT_EQ(changes,
            "Nr: 7 -> 8; Country: Egypt -> Sudan; Max depth: 60.5 -> 65.9; "
            "Notes: one\r\ntwo -> one\nthree; Salt: yes -> no; Fresh: no -> yes; ");
}

TEST(RoundTrip, TakesTheRoundingOfOthersForTheValueItself) {
  Logbook logbook;
  for (const char* depth : {"60.55", "60.5", "7", "330.04"})
    logbook.dives.push_back(plainDive("1", depth));
  auto file = asUddf(logbook, kPoint);
  for (const auto& [exact, rounded] : {std::pair{"18.4556", "18.46"},
                                       {"18.4404", "18.440"},
                                       {"2.1336", "2.13"},
                                       {"100.5962", "100.60"}})
    file.replace(file.find(exact), std::string_view(exact).size(), rounded);
  TemporaryFolder folder;
  expectSame(openSource(folder.write("a.uddf", file))->dives({}, kPoint), logbook.dives);
}

}  // namespace
}  // namespace nautrel::exchange
