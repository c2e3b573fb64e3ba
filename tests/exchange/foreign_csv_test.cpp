// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange_test.h"

namespace nautrel::exchange {
namespace {

constexpr auto kDmy = DateOrder::DayFirst;
constexpr auto kMdy = DateOrder::MonthFirst;
constexpr auto kMetric = UnitSystem::Metric;
constexpr auto kImperial = UnitSystem::Imperial;
constexpr auto kMinutes = DurationForm::MinutesSeconds;
constexpr auto kHours = DurationForm::HoursMinutes;

std::vector<std::string> toldOf(const ImportPlan& plan) {
  std::vector<std::string> dives;
  for (const auto& dive : plan.dives()) dives.push_back(told(dive));
  return dives;
}

struct ForeignFile {
  const char* manner;
  std::string content;
  Answers answers;
  std::vector<std::string> dives;
};

TEST(ForeignCsv, ReadsTheMannerOfEachProgram) {
  const ForeignFile files[] = {
      {"desktop log: tanks, gas and temperatures, the first tank without a pressure",
       "dive number,date,time,duration [min],sac [l/min],maxdepth [m],avgdepth [m],mode,"
       "airtemp [C],watertemp [C],cylinder size (1) [l],startpressure (1) [bar],"
       "endpressure (1) [bar],o2 (1) [%],he (1) [%],cylinder size (2) [l],startpressure (2) [bar],"
       "endpressure (2) [bar],o2 (2) [%],he (2) [%],location,gps,divemaster,"
       "buddy,suit,rating,visibility,notes,weight [kg],tags,\n"
       "\"2\",\"2001-03-06\",\"10:00:00\",\"0:42\",\"\",\"3.1\",\"\",\"OC\",\"-5.0\",\"18.0\",\"12."
       "0\","
       "\"200.0\",\"50.5\",\"32.0\",\"\",\"7\",\"150\",\"100\",\"18\",\"45\",\"Dahab\",\"\",\"\","
       "\"Bob\","
       "\"wet\",\"3\",\"4\",\"a\nb\",\"4.5\",\"\"\n"
       "\"1\",\"2001-03-05\",\"09:00:00\",\"45:20\",\"\",\"18.4\",\"\",\"OC\",\"warm\",\"\",\"3."
       "0\",\"0.0\","
       "\"\",\"21.0\",\"\",\"11.1\",\"200\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\","
       "\"\",\"\"\n",
       {},
       {"20010305 Zeit=45 Tiefe=60.4 Lang=Tank 1: 3 l\nAir temperature: warm Liter=80 Bars=2901",
        "20010306 Platz=Dahab Zeit=1 Tiefe=10.2 Buddy=Bob Lang=a\nb\nTank 1: EAN32\n"
        "Tank 2: 7 l, 150-100 bar, trimix 18/45\nAir temperature: -5 °C (23 °F)\n"
        "Water temperature: 18 °C (64 °F) Liter=86 Bars=2901 Bare=732 Anzug=wet Blei=9.9"}},
      {"the file tells that its comma groups digits",
       "Date,Duration,Max Depth (ft),Start Pressure (psi),Air temperature [F]\n"
       "2001-03-05,45,60.5,\"3,000\",50\n",
       {},
       {"20010305 Zeit=45 Tiefe=60.5 Lang=Air temperature: 10 °C (50 °F) Bars=3000"}},
      {"the file tells that its point does",
       "Date;Duration;Max Depth (m);Start Pressure (psi)\n2001-03-05;45;18,4;3.000\n",
       {},
       {"20010305 Zeit=45 Tiefe=60.4 Bars=3000"}},
      {"agency app",
       "Date;Dive time;Max depth;Buddy\n06. Dec 2025 20:27;51 min;25.5 m (84 ft);Eve\n"
       "5. M\xC3\xA4rz 2025;1h 05m;7,5 m;\n",
       {},
       {"20250305 Zeit=65 Tiefe=24.6", "20251206 Zeit=51 Tiefe=83.7 Buddy=Eve"}},
      {"phone app",
       "Dive Number,Name,Date,Time,Site,Location,Max Depth (m),Bottom Time (min),"
       "Start Pressure (bar),Tank Volume (L)\r7,x,2024-01-02,14:30,Reef,Dahab,10,30,200,11.1\r",
       {},
       {"20240102 Ort=Dahab Platz=Reef Zeit=30 Tiefe=32.8 Liter=80 Bars=2901"}},
      {"a clock in DiveTime, with answers",
       "DiveDate,DiveTime,DiveSite,MaxDepth,Duration\n05/03/2001,13:05,Reef,60.57,0:45\n",
       {.dates = kMdy, .durations = kHours, .units = kImperial},
       {"20010503 Platz=Reef Zeit=45 Tiefe=60.6"}},
      {"the same, answered otherwise",
       "DiveDate,DiveTime,DiveSite,MaxDepth,Duration\n05/03/2001,13:05,Reef,18.4,0:45\n",
       {.dates = kDmy, .durations = kMinutes, .units = kMetric},
       {"20010305 Platz=Reef Zeit=1 Tiefe=60.4"}},
      {"western code page, tabs, a day that tells the order, activity",
       "Date\tActivity Type\tMax Depth [ft]\tBottom Time\tTauchplatz\n31.12.99\tDive\t1,060.5\t"
       "1:02:29\tK\xF6ln\n",
       {},
       {"19991231 Platz=Köln Zeit=62 Tiefe=1061"}},
      {"separator in a line of its own, formula cells, imperial units",
       "\"sep=;\"\nDate;Bottom Time;Max. Depth [ft];weight [lbs];cylinder size [cuft];"
       "start pressure [psi];notes\n2001-03-05;45;60;10;80;3000;=1+1\n\n",
       {},
       {"20010305 Zeit=45 Tiefe=60 Lang==1+1 Liter=80 Bars=3000 Blei=10"}},
      {"what must be there is not",
       "Date,Duration,Max Depth (m)\n2001-02-30,45,10\n2001-03-05,45,NaN\n2001-03-06,45,-10\n"
       "2001-03-07,,10\n,45,10\n2001-03-08,45,0.01\n",
       {},
       {"left out: its date '2001-02-30' is none", "left out: it has no date",
        "left out: its depth '0.01' is none", "left out: its depth 'NaN' is none",
        "left out: the depth -10 is negative", "left out: it has no dive time"}},
  };
  Book book;
  for (const auto& file : files) {
    SCOPED_TRACE(file.manner);
    auto dives = toldOf(book.planOf("a.csv", file.content, file.answers));
    auto expected = file.dives;
    if (expected.front().starts_with("left out")) {
      std::sort(dives.begin(), dives.end());
      std::sort(expected.begin(), expected.end());
    }
    EXPECT_EQ(dives, expected);
  }
}

TEST(ForeignCsv, TellsWhatItCouldNotTakeAsItStands) {
  const std::string head = "Date,Duration,Max Depth (m),Start Pressure (psi),Weight [kg]\n";
  const std::pair<const char*, const char*> rows[] = {
      {"2001-03-05,45,18,\"3,000\",\n",
       "20010305 Zeit=45 Tiefe=59.1 Bars=3; Start pressure: 3,000 -> 3, nothing in the file tells "
       "whether its sign groups digits; it was taken for a decimal one"},
      {"2001-03-05,45,18,-1,0.01\n",
       "20010305 Zeit=45 Tiefe=59.1 Lang=Start pressure: -1\nWeight: 0.01; "
       "Start pressure: -1 -> , is negative; Weight: 0.01 -> , is 0 when it is rounded"}};
  Book book;
  for (const auto& [row, expected] : rows) {
    const auto plan = book.planOf("a.csv", head + row);
    auto all = told(plan.dives()[0]);
    for (const auto& change : plan.dives()[0].source.changes)
      all += "; " + change.column + ": " + change.from + " -> " + change.to + ", " + change.why;
    EXPECT_EQ(all, expected);
  }
}

TEST(ForeignCsv, AsksWhatTheFileLeavesOpen) {
  Book book;
  const auto path = book.folder.write(
      "a.csv", "Date,Duration,Max Depth,Rating\n05/03/2001,0:45,18.4,3\n01/02/2001,0:50,0,4\n");
  const auto source = openSource(path);
  std::string asked;
  for (const auto& question : source->questions())
    asked += question.column + " " + question.example + "; ";
  EXPECT_EQ(asked, "Date 05/03/2001; Duration 0:45; Max Depth 18.4; ");
  EXPECT_EQ(source->notes(),
            std::vector<std::string>{"Columns that have no place in the logbook: 'Rating'."});
  EXPECT_NE(refusal([&] { book.plan(path); }).find("'Date' can be read in two ways: '05/03/2001'"),
            std::string::npos);
  const auto told = book.folder.write(
      "b.csv", "Date,Duration,Max Depth (m)\n05/03/2001,0:45,18.4\n01/13/2001,7:00,0\n");
  EXPECT_TRUE(openSource(told)->questions().empty());
}

}  // namespace
}  // namespace nautrel::exchange
