// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/figures.h"

#include "store/store_test.h"

namespace nautrel {
namespace {

const Locale kPoint;
const Locale kComma{",", "."};

struct Dive {
  Value time = "60";
  Value depth = "30";
  Value year = "2020";
  Value month = "03";
  std::vector<std::string> flags = {};
};

Dive depth(const char* feet) {
  return {"60", feet};
}
Dive time(const char* minutes) {
  return {minutes, "30"};
}
Dive inYear(Value year) {
  return {"60", "30", year};
}
Dive inMonth(Value month) {
  return {"60", "30", "2020", month};
}

class FiguresTest : public StoreTest {
 protected:
  /// Numbers from 301 on.
  void fill(const std::vector<Dive>& logbook) {
    otherProgram("DELETE FROM Logbuch");
    auto dives = table();
    int number = 301;
    for (const Dive& dive : logbook) {
      dives.AddNew();
      dives.setField("Nr", number++);
      dives.setField("Zeit", dive.time);
      dives.setField("Tiefe", dive.depth);
      dives.setField("Jahr", dive.year);
      dives.setField("Monat", dive.month);
      for (const std::string& flag : dive.flags) dives.setField(flag, true);
      dives.Update();
    }
  }

  Recordset dives(const Columns& columns) {
    return workspace.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch, columns);
  }

  StatisticFigures statistic(const std::vector<Dive>& logbook) {
    fill(logbook);
    auto rows = dives(statisticColumns());
    return countStatistic(rows, kPoint, count());
  }
  YearFigures years(const std::vector<Dive>& logbook, int lastYear = 2025) {
    fill(logbook);
    auto rows = dives(yearColumns());
    return countYears(rows, lastYear, kPoint, count());
  }
  std::array<std::string, 12> months(const std::vector<Dive>& logbook,
                                     const Locale& locale = kPoint) {
    fill(logbook);
    auto rows = dives(monthColumns());
    return countMonths(rows, locale, count());
  }

  DiveDone count() {
    steps.clear();
    return [this](int dive) { steps.push_back(dive); };
  }

  std::vector<int> steps;
};

std::string bands(const StatisticFigures& figures) {
  std::string all;
  for (const ShareFigure& band : figures.depthBands)
    all += std::to_string(band.dives) + "=" + band.percent + " ";
  return all;
}

std::string joined(const std::vector<GraphRow>& rows) {
  std::string all;
  for (const GraphRow& row : rows) all += row.label + ":" + row.value + " ";
  return all;
}

TEST_F(FiguresTest, StatisticSumsAndAverages) {
  const struct {
    std::vector<Dive> logbook;
    const char *whole, *middle, *depth;
  } cases[] = {
      {{{"0", "0"}}, ".", ".", "."},
      {{time("30")}, ".5", "30.", "30."},
      {{time("10"), time("10"), time("11")}, ".52", "10.33", "30."},
      {{depth("-10"), depth("35")}, "2.", "60.", "12.5"},
      {{depth(" 1,000 "), depth("1E2")}, "2.", "60.", "550."},
      {{depth("0.1"), depth("0.2"), depth("-0.3")}, "3.", "60.", "."},
      {{{"0.3", "12.345"}}, ".01", ".3", "12.35"},
  };
  for (const auto& [logbook, whole, middle, average] : cases) {
    const auto figures = statistic(logbook);
    EXPECT_EQ(figures.wholeDivetime, whole);
    EXPECT_EQ(figures.middleDivetime, middle);
    EXPECT_EQ(figures.middleDepth, average);
  }
}

// The earlier of equal records stays, and what does not pass the first limit is none.
TEST_F(FiguresTest, RecordsAreHeldByTheirDives) {
  const struct {
    std::vector<Dive> logbook;
    const char *longest, *shortest, *deepest, *shallowest;
  } cases[] = {
      {{{"50", "90"}, {"70", "100"}, {" 70 ", "100.0"}, {"9", "20"}, {"9", "20"}},
       "70 302",
       "9 304",
       "100 302",
       "20 304"},
      {{{"0", "0"}}, "0 0", "0 301", "0 0", "0 301"},
      {{{"999", "999"}}, "999 301", "999 0", "999 301", "999 0"},
      {{{"1200", "1000"}}, "1200 301", "999 0", "1000 301", "999 0"},
      {{{" 07 ", "-3"}}, " 07  301", " 07  301", "0 0", "-3 301"},
  };
  for (const auto& [logbook, longest, shortest, deepest, shallowest] : cases) {
    const auto figures = statistic(logbook);
    EXPECT_EQ(figures.longest.value + " " + figures.longest.number, longest);
    EXPECT_EQ(figures.shortest.value + " " + figures.shortest.number, shortest);
    EXPECT_EQ(figures.deepest.value + " " + figures.deepest.number, deepest);
    EXPECT_EQ(figures.shallowest.value + " " + figures.shallowest.number, shallowest);
  }
}

TEST_F(FiguresTest, DepthsFallIntoTheirBands) {
  const struct {
    const char* feet;
    int band;
  } cases[] = {{"0", 0},   {"30", 0},    {"30.5", 1}, {"31", 1},  {"60", 1},
               {"90", 2},  {"90.01", 3}, {"120", 3},  {"150", 4}, {"150.5", 5},
               {"999", 5}, {"1E9", 5},   {"-0.5", 6}, {"-30", 6}};
  for (const auto& [feet, band] : cases) {
    const auto figures = statistic({depth(feet)});
    for (int each = 0; each < 6; ++each)
      EXPECT_EQ(figures.depthBands[each].dives, each == band) << feet << " in band " << each;
  }
}

TEST_F(FiguresTest, SharesAreRoundedOneByOne) {
  std::vector<Dive> logbook(299, depth("10"));
  logbook.push_back(depth("160"));
  EXPECT_EQ(bands(statistic(logbook)), "299=100 % 0=0 % 0=0 % 0=0 % 0=0 % 1= % ");
  EXPECT_EQ(bands(statistic({depth("1"), depth("40"), depth("70")})),
            "1=33 % 1=33 % 1=33 % 0=0 % 0=0 % 0=0 % ");
  std::vector<Dive> halves(200, Dive{});
  halves[7].flags = {"Süß", "Ufer", "Rep", "Deco"};
  const auto figures = statistic(halves);
  for (const auto& share :
       {figures.sweetWater, figures.fromShore, figures.repetitive, figures.decoStop})
    EXPECT_EQ(share.percent, "1 %");
}

TEST_F(FiguresTest, ATimeOrDepthThatIsNoNumberFails) {
  const struct {
    Dive dive;
    int failure;
  } cases[] = {
      {{"", "30"}, TypeMismatch},
      {{"long", "30"}, TypeMismatch},
      {{"60", "30 ft"}, TypeMismatch},
      {{Value::null(), "30"}, InvalidUseOfNull},
      {{"60", Value::null()}, InvalidUseOfNull},
      {{"1E400", "30"}, Overflow},
  };
  for (const auto& [dive, failure] : cases)
    EXPECT_EQ(failureOf([&] { statistic({Dive{}, dive}); }), failure);
  EXPECT_EQ(failureOf([&] { statistic({time("1E308"), time("1E308")}); }), Overflow);
  EXPECT_EQ(failureOf([&] { statistic({}); }), NoCurrentRecord);
}

TEST_F(FiguresTest, EveryDiveIsOneStep) {
  const std::vector<Dive> logbook(3);
  statistic(logbook);
  EXPECT_EQ(steps, (std::vector{1, 2, 3}));
  years(logbook);
  EXPECT_EQ(steps, (std::vector{1, 2, 3}));
  months(logbook);
  EXPECT_EQ(steps, (std::vector{1, 2, 3}));
}

TEST_F(FiguresTest, YearsCountWhatIsTheirText) {
  const struct {
    std::vector<Dive> logbook;
    const char* counted;
    const char* greatest;
  } cases[] = {
      {{inYear("2025"), inYear("2016"), inYear("2025")}, "2016:1 2025:2 ", "2025"},
      {{inYear("1999"), inYear("2015"), inYear("1980")}, "", "2015"},
      {{inYear("2030"), inYear("2020")}, "2020:1 ", "2030"},
      {{inYear(" 2020 "), inYear("2,020"), inYear("2020.0")}, "", " 2020 "},
      {{inYear("-5"), inYear("0")}, "", "0"},
      {{}, "", "0"},
  };
  for (const auto& [logbook, counted, greatest] : cases) {
    auto figures = years(logbook);
    ASSERT_EQ(figures.rows.size(), 10U);
    EXPECT_EQ(figures.rows.front().label + figures.rows.back().label, "20162025");
    std::erase_if(figures.rows, [](const GraphRow& row) { return row.value == "0"; });
    EXPECT_EQ(joined(figures.rows), counted);
    EXPECT_EQ(figures.greatestYear, greatest);
  }
  EXPECT_EQ(failureOf([&] { years({inYear("")}); }), TypeMismatch);
  EXPECT_EQ(failureOf([&] { years({inYear("'99")}); }), TypeMismatch);
  EXPECT_EQ(failureOf([&] { years({inYear(Value::null())}); }), InvalidUseOfNull);
}

TEST_F(FiguresTest, MonthsShareAllDives) {
  EXPECT_EQ(months(std::vector<Dive>(10))[2], "100");
  const auto thirds = months({inMonth("01"), inMonth("09"), inMonth("12")}, kComma);
  EXPECT_EQ(thirds[0] + " " + thirds[8] + " " + thirds[11] + " " + thirds[1],
            "33,3333333333333 33,3333333333333 33,3333333333333 0");
  const auto odd = months({inMonth("3"), inMonth("13"), inMonth(""), inMonth(Value::null()),
                           inMonth(" 03"), inMonth("03"), inMonth("10"), inMonth("10")});
  EXPECT_EQ(odd[2] + " " + odd[9] + " " + odd[11], "12.5 25 0");
  EXPECT_EQ(failureOf([&] { months({}); }), Overflow);
}

}  // namespace
}  // namespace nautrel
