// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_writer.h"
#include "exchange_test.h"

namespace nautrel::exchange {
namespace {

std::string written(const Logbook& logbook, std::vector<std::string>* notes = nullptr) {
  UddfWriter writer(logbook, {});
  auto file = writer.head();
  for (const auto& dive : logbook.dives) file += writer.dive(dive);
  if (notes != nullptr) *notes = writer.notes();
  return file + writer.tail();
}

/// As a program leaves it that keeps no data of others.
std::string withoutApplicationData(std::string file) {
  constexpr std::string_view kEnd = "</applicationdata>\n";
  for (auto start = file.find("<applicationdata"); start != std::string::npos;
       start = file.find("<applicationdata", start))
    file.erase(start, file.find(kEnd, start) + kEnd.size() - start);
  return file;
}

TEST(UddfExport, GivesOtherProgramsTheValuesInTheirUnits) {
  auto dive = plainDive("7", "60.5");
  const std::pair<int, const char*> texts[] = {
      {Feld::Land, "Egypt"},     {Feld::Ort, "Dahab"},   {Feld::Platz, "Reef"},
      {Feld::Buddy, "Bob, Eve"}, {Feld::Lang, "a\r\nb"}, {Feld::Liter, "80"},
      {Feld::Bars, "3000"},      {Feld::Bare, "500"},    {Feld::Anzug, "5mm"},
      {Feld::Höhe, "328ft"},     {Feld::Blei, "10"},     {Feld::Grafik, "C:\\a.jpg"}};
  for (const auto& [column, text] : texts) dive.texts[column] = text;
  for (const int flag : {Feld::Salz, Feld::Boot, Feld::Alu}) dive.flags.set(flag);
  auto second = plainDive("8");
  second.flags.set(Feld::Rep);
  const auto file = written({.dives = {dive, second, plainDive("x")}});
  for (const char* part : {"<country>Egypt<",
                           "<location>Dahab<",
                           "<name>Reef<",
                           "<firstname>Bob<",
                           "<firstname>Eve<",
                           "<para>a</para>",
                           "<para>b</para>",
                           "<link ref=\"img-1\"/>",
                           "<tankvolume>0.0111002<",
                           "<tankpressurebegin>20684272<",
                           "<tankpressureend>3447379<",
                           "<suit id=\"suit-1\">",
                           "<name>5mm<",
                           "<altitude>99.9744<",
                           "<leadquantity>4.5359<",
                           "<objectname>C:\\a.jpg<",
                           "<environment>ocean-sea<",
                           "<platform>small-boat<",
                           "<tankmaterial>aluminium<",
                           "<greatestdepth>18.4404<",
                           "<diveduration>2700<",
                           "<divenumber>7<",
                           "T00:00:00</datetime>",
                           "<datetime>2001-03-05T01:45:00<",
                           "<datetime>2001-03-05T03:30:00<"})
    EXPECT_NE(file.find(part), std::string::npos) << part << "\n" << file;
  EXPECT_EQ(file.find("rg-3"), std::string::npos);
  EXPECT_NE(file.find("rg-2"), std::string::npos);
  EXPECT_EQ(file.find("<divenumber>x"), std::string::npos);
}

TEST(UddfExport, TellsWhatTheFormCannotHold) {
  auto noDate = plainDive("1", "ca. 20");
  noDate.texts[Feld::Tag] = "ab";
  noDate.texts[Feld::Blei] = "-4";
  auto late = plainDive("2");
  late.texts[Feld::Tag] = "31";
  late.texts[Feld::Monat] = "02";
  std::vector<std::string> notes;
  const auto file = written({.dives = {noDate, late}}, &notes);
  EXPECT_EQ(notes, (std::vector<std::string>{
                       "Dive 1: ab.03.2001 is no date and stands as 1900-01-01 in the file.",
                       "Dive 1: Max depth 'ca. 20' is no number and stands as 0 in the file.",
                       "Dive 1: Weight '-4' is negative and comes back to Nautrel alone.",
                       "Dive 2: 31.02.2001 is no date and stands as 2001-02-28 in the file."}));
  EXPECT_NE(file.find("<datetime>1900-01-01T00:00:00<"), std::string::npos);
  EXPECT_NE(file.find("<datetime>2001-02-28T00:00:00<"), std::string::npos);
}

TEST(UddfExport, NumbersComeBackAlsoWithoutOurBlock) {
  const auto tenths = [](int value) {
    return std::to_string(value / 10) + (value % 10 == 0 ? "" : "." + std::to_string(value % 10));
  };
  Logbook logbook;
  for (int step = 1; step < 1000; ++step) {
    auto dive = plainDive("1", step % 2 == 0 ? tenths(step) : std::to_string(100 + step));
    dive.texts[Feld::Zeit] = std::to_string(step);
    dive.texts[Feld::Bars] = std::to_string(step * 6);
    dive.texts[Feld::Bare] = std::to_string(step);
    dive.texts[Feld::Liter] = step < 100 ? tenths(step) : std::to_string(step);
    dive.texts[Feld::Blei] = dive.texts[Feld::Liter];
    logbook.dives.push_back(dive);
  }
  TemporaryFolder folder;
  const auto path = folder.write("a.uddf", withoutApplicationData(written(logbook)));
  const auto read = openSource(path)->dives({}, {});
  ASSERT_EQ(read.size(), logbook.dives.size());
  for (std::size_t place = 0; place < read.size(); ++place)
    for (const int column : {Feld::Tag, Feld::Monat, Feld::Jahr, Feld::Zeit, Feld::Tiefe,
                             Feld::Bars, Feld::Bare, Feld::Liter, Feld::Blei})
      ASSERT_EQ(read[place].record.texts[column], logbook.dives[place].texts[column])
          << diveColumn(column).name;
}

}  // namespace
}  // namespace nautrel::exchange
