// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dates.h"
#include "exchange/import_report.h"
#include "exchange_test.h"

namespace nautrel::exchange {
namespace {

struct ForeignFile {
  const char* manner;
  const char* content;
  std::vector<std::string> dives;
};

std::string uddf(const std::string& inside) {
  return "<uddf xmlns='http://www.streit.cc/uddf/3.2/' version='3.2.2'>" + inside + "</uddf>";
}

std::string oneDive(const std::string& inside) {
  return uddf("<profiledata><repetitiongroup id='g'><dive id='d'>" + inside +
              "</dive></repetitiongroup></profiledata>");
}

std::string before(const std::string& inside) {
  return "<informationbeforedive>" + inside + "</informationbeforedive>";
}

std::string after(const std::string& inside) {
  return "<informationafterdive>" + inside + "</informationafterdive>";
}

const ForeignFile kFiles[] = {
    {"online log: no namespace, tank first, zero samples, one group, empty names",
     R"(<?xml version="1.0" encoding="utf-8"?><uddf version="3.2.0"><generator><name>web</name></generator>
<diver><owner id="o"><personal><firstname>A</firstname><lastname/></personal></owner>
<buddy id="b1"><personal><firstname>Bob</firstname><lastname>Lee</lastname></personal></buddy></diver>
<divesite><site id="s1"><name></name><geography><location>Dahab</location><latitude>0</latitude><longitude>0</longitude><address><country>Egypt</country></address></geography></site></divesite>
<profiledata><repetitiongroup id="1">
<dive id="1"><tankdata><tankvolume>0.012</tankvolume><tankpressurebegin>20000000.0</tankpressurebegin><tankpressureend>5.0E6</tankpressureend></tankdata>
<informationbeforedive><divenumber>12</divenumber><link ref="s1"/><link ref="b1"/><link ref="gone"/><datetime>2001-03-05T10:00:00</datetime><surfaceintervalbeforedive><inifinity/></surfaceintervalbeforedive></informationbeforedive>
<samples><waypoint><depth>0</depth><divetime>0</divetime></waypoint><waypoint><depth>0</depth><divetime>60</divetime></waypoint><waypoint><depth>18.4</depth><divetime>120</divetime></waypoint></samples>
<informationafterdive><greatestdepth>18.4</greatestdepth><diveduration>2700</diveduration></informationafterdive></dive>
<dive id="2"><informationbeforedive><divenumber>13</divenumber><datetime>2001-03-05T12:00:00</datetime><surfaceintervalbeforedive><passedtime>3600</passedtime></surfaceintervalbeforedive></informationbeforedive>
<informationafterdive><greatestdepth>5.0</greatestdepth><diveduration>59</diveduration></informationafterdive></dive>
</repetitiongroup></profiledata></uddf>)",
     {"20010305 Land=Egypt Ort=Dahab Zeit=45 Tiefe=60.4 Buddy=Bob Lee Liter=86 Bars=2901 Bare=725",
      "20010305 Zeit=1 Tiefe=16.4 +Rep"}},
    {"computer: owner without id, ids with blanks and colons, six tanks at 0, empty headings",
     R"(<uddf xmlns="http://www.streit.cc/uddf/3.2/" version="3.2.1"><maker><manufacturer id="m"><name>M</name></manufacturer><manufacturer id="m"><name>N</name></manufacturer></maker>
<diver><owner><personal><firstname/><lastname/></personal></owner><buddy><personal><firstname>Nobody</firstname></personal></buddy></diver>
<divesite><site><name>Nowhere</name></site><site id=" "><name>Neither</name></site></divesite>
<gasdefinitions><mix><o2>0.5</o2></mix><mix id="OC1:32/00 a"><name>EAN32</name><o2>0.32</o2><he>0.0</he></mix></gasdefinitions>
<profiledata><repetitiongroup id="dive 1"><dive id="dive 1"><informationbeforedive><link ref=""/><link/><divenumber>1</divenumber><datetime>2019-08-01T09:30:15Z</datetime><surfacepressure>7000000</surfacepressure><surfaceintervalbeforedive><passedtime>86340</passedtime></surfaceintervalbeforedive></informationbeforedive>
<tankdata><link ref="OC1:32/00 a"/><tankpressurebegin>0</tankpressurebegin><tankpressureend>0</tankpressureend></tankdata><tankdata><tankpressurebegin>0</tankpressurebegin></tankdata>
<samples><waypoint><depth>3</depth><divetime>10</divetime><switchmix ref="OC1:32/00 a"/></waypoint></samples>
<informationafterdive><lowesttemperature>291.15</lowesttemperature><greatestdepth>30.5</greatestdepth><diveduration>3600</diveduration><notes><para></para><para> </para></notes></informationafterdive></dive></repetitiongroup></profiledata></uddf>)",
     {"20190801 Zeit=60 Tiefe=100 Lang=Tank 1: EAN32\nLowest temperature: 18 °C (64 °F)"}},
    {"watch app: newest first, no numbers, small dives, samples before tankdata",
     R"(<uddf version="3.2.0"><generator/><profiledata><repetitiongroup>
<dive><informationbeforedive><datetime>2023-05-02T08:00:00.1234567+00:07</datetime></informationbeforedive><samples><waypoint><divetime>2107.0</divetime><depth>12.0</depth></waypoint></samples><tankdata><tankpressurebegin>200,0</tankpressurebegin></tankdata><informationafterdive><greatestdepth>12.0</greatestdepth><diveduration>2107.0</diveduration></informationafterdive></dive>
<dive><informationbeforedive><datetime>2023-05-01T07:00:00</datetime></informationbeforedive><informationafterdive><greatestdepth>0.6</greatestdepth><diveduration>30.0</diveduration></informationafterdive></dive>
</repetitiongroup></profiledata></uddf>)",
     {"20230501 Zeit=1 Tiefe=2", "20230502 Zeit=35 Tiefe=39.4 Bars=2901"}},
    {"desktop log: location repeats the name, lead 0, blanks in ids, litres, stars, bare notes",
     R"(<uddf xmlns="http://www.streit.cc/uddf/3.2/" version="3.2.0"><divesite><site id=" ff47210"><name>Blue Hole</name><environment>lake-quarry</environment><geography><location>Blue Hole</location><address><city>Dahab</city></address></geography></site></divesite>
<profiledata><repetitiongroup id="7"><dive id="7"><informationbeforedive><link ref="ff47210"/><divenumber>7</divenumber><datetime>2001-03-05</datetime><equipmentused><leadquantity>0</leadquantity></equipmentused></informationbeforedive><tankdata><tankvolume>11.1</tankvolume><tankpressurebegin>20684272</tankpressurebegin></tankdata><informationafterdive><greatestdepth>18.44</greatestdepth><visibility>3</visibility><diveduration>2700.0</diveduration><notes>first &amp; second
   line</notes></informationafterdive></dive></repetitiongroup></profiledata></uddf>)",
     {"20010305 Ort=Dahab Platz=Blue Hole Zeit=45 Tiefe=60.5 Lang=first & second\nline +Süß "
      "Liter=80 Bars=3000 +Sichts"}},
    {"desktop log A: CDATA, long decimals, country in the address, density",
     R"(<uddf version="3.2.1"><divesite><site id="s"><name>Wreck</name><geography><address><country>Malta</country></address></geography><sitedata><density>1030</density></sitedata></site></divesite><profiledata><repetitiongroup id="r"><dive id="d"><informationbeforedive><datetime>2010-06-18T</datetime><divenumber>3</divenumber><link ref="s"/></informationbeforedive><informationafterdive><greatestdepth>45.30000</greatestdepth><diveduration>3494.00</diveduration><visibility>20</visibility><notes>dark &amp;
 cold
<para><![CDATA[<b>deep</b>]]></para> and <b/> calm <para>wide</para></notes></informationafterdive></dive></repetitiongroup></profiledata></uddf>)",
     {"20100618 Land=Malta Platz=Wreck Zeit=58 Tiefe=149 Lang=dark &\ncold\n<b>deep</b>\nand  "
      "calm\nwide +Salz +Sichtg"}},
    {"desktop log B: no date, pressures in samples alone, safety stops",
     R"(<uddf version="3.2.1"><profiledata><repetitiongroup id="r"><dive id="a"><informationbeforedive><datetime>0001-01-01T00:00:00</datetime></informationbeforedive><informationafterdive><greatestdepth>10</greatestdepth><diveduration>600</diveduration></informationafterdive></dive>
<dive id="b"><informationbeforedive><datetime>2015-01-02T10:11</datetime></informationbeforedive><samples><waypoint><depth>20</depth><divetime>0</divetime><tankpressure ref="t">20000000</tankpressure><tankpressure ref="u">19000000</tankpressure><decostop kind="safety" duration="180"/></waypoint><waypoint><depth>25.5</depth><divetime>1200</divetime><tankpressure ref="t">6000000</tankpressure><decostop kind="mandatory" decodepth="3" duration="60"/></waypoint></samples><informationafterdive><greatestdepth>0</greatestdepth></informationafterdive></dive></repetitiongroup></profiledata></uddf>)",
     {"left out: its date '0001-01-01T00:00:00' is none",
      "20150102 Zeit=20 Tiefe=83.7 +Deco Bars=2901 Bare=870"}},
    {"set-up export: a dive of nothing but what is known before it",
     R"(<uddf><profiledata><repetitiongroup id="r"><dive id="a"><informationbeforedive><datetime>2012-02-03T00:00:00</datetime></informationbeforedive></dive></repetitiongroup></profiledata></uddf>)",
     {"left out: it has no dive time"}},
    {"version 2: upper case, oxygen in percent, date in parts, samples without time",
     R"(<?xml version="1.0" encoding="ISO-8859-1"?><UDDF VERSION="2.2.0"><GASDEFINITIONS><MIX ID="ean"><O2>36</O2></MIX></GASDEFINITIONS><DIVESITE><SITE ID="x"><NAME>K)"
     "\xF6"
     R"(ln</NAME></SITE></DIVESITE><PROFILEDATA><REPETITIONGROUP><DIVE ID="1"><INFORMATIONBEFOREDIVE><LINK REF="x"/><DATE><YEAR>1999</YEAR><MONTH>7</MONTH><DAY>4</DAY></DATE><TIME><HOUR>9</HOUR><MINUTE>5</MINUTE></TIME><PLATFORM>Pier</PLATFORM></INFORMATIONBEFOREDIVE><SAMPLES><WAYPOINT><DEPTH>9,1</DEPTH></WAYPOINT></SAMPLES><TANKDATA><LINK REF="ean"/></TANKDATA><INFORMATIONAFTERDIVE><DIVEDURATION>1800</DIVEDURATION></INFORMATIONAFTERDIVE></DIVE></REPETITIONGROUP></PROFILEDATA></UDDF>)",
     {"19990704 Platz=Köln Zeit=30 Tiefe=29.9 Lang=Tank 1: EAN36 +Ufer"}},
};

TEST(ForeignUddf, ReadsTheMannerOfEachProgram) {
  Book book;
  for (const auto& file : kFiles) {
    SCOPED_TRACE(file.manner);
    const auto plan = book.planOf("a.uddf", file.content);
    std::vector<std::string> dives;
    for (const auto& dive : plan.dives()) dives.push_back(told(dive));
    EXPECT_EQ(dives, file.dives);
  }
}

TEST(ForeignUddf, ReadsTheDigitsOfADate) {
  const std::pair<const char*, int> dates[] = {{"2002-06-18", -1},
                                               {"2002-06-18T", -1},
                                               {"2002-06-18Z", -1},
                                               {"2002-06-18+02:00", -1},
                                               {"2002-06-18-0530", -1},
                                               {"2002-06-18T10", 600},
                                               {"2002-06-18T10Z", 600},
                                               {"2002-06-18 10:05", 605},
                                               {"2002-06-18T10:05+02:00", 605},
                                               {"2002-06-18T10:05:59.9999999Z", 605}};
  for (const auto& [text, minute] : dates) {
    SCOPED_TRACE(text);
    const auto moment = readMoment(text);
    ASSERT_TRUE(moment);
    EXPECT_EQ(isoText(moment->date), "2002-06-18");
    EXPECT_EQ(moment->minuteOfDay.value_or(-1), minute);
  }
  for (const char* none : {"2002-06-18x", "2002-06-31", "2002-06", "0001-01-01", "2002-06-18+"})
    EXPECT_FALSE(readMoment(none)) << none;
}

TEST(ForeignUddf, ReadsEveryEncoding) {
  Book book;
  std::string plain =
      "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" +
      oneDive(before("<datetime>2001-03-05</datetime>") +
              after("<greatestdepth>3</greatestdepth><diveduration>60</diveduration>"
                    "<notes>x</notes>"));
  std::string wide = "\xFF\xFE";
  for (const char letter : plain) wide += std::string{letter, '\0'};
  plain.replace(plain.find("UTF-16"), 6, "windows-1252");
  plain.replace(plain.find(">x<"), 3, ">\x80<");
  EXPECT_EQ(told(book.planOf("a.uddf", wide).dives()[0]), "20010305 Zeit=1 Tiefe=9.8 Lang=x");
  EXPECT_EQ(told(book.planOf("a.uddf", plain).dives()[0]), "20010305 Zeit=1 Tiefe=9.8 Lang=€");
}

TEST(ForeignUddf, FitsTheBoxesAndTellsWhatItChanged) {
  Book book;
  const auto plan = book.planOf(
      "a.uddf",
      uddf("<divesite><site id='s'><name>A name of more than twenty</name></site></divesite>"
           "<profiledata><dive id='d'>" +
           before("<link ref='s'/><divenumber>12.0</divenumber><datetime>2001-03-05</datetime>"
                  "<equipmentused><leadquantity>99999</leadquantity></equipmentused>") +
           "<tankdata><tankvolume>-0.01</tankvolume><tankpressurebegin>-5</tankpressurebegin>"
           "</tankdata>" +
           after("<greatestdepth>45.9</greatestdepth><diveduration>2730</diveduration>"
                 "<notes>n</notes>") +
           "</dive></profiledata>"));
  const auto& dive = plan.dives()[0];
  EXPECT_EQ(told(dive),
            "20010305 Platz=A name of more than  Zeit=46 Tiefe=151 "
            "Lang=n\nWeight: 99999 kg\nTank size: -0.01\nStart pressure: -5\nPlace: A name of more "
            "than twenty");
  std::string changes;
  for (const auto& change : dive.source.changes)
    changes += change.column + ": " + change.from + " -> " + change.to + "; ";
  EXPECT_EQ(changes,
            "Duration: 2730 s -> 46; Max depth: 45.9 m -> 151; Weight: 99999 kg -> ; "
            "Tank size: -0.01 -> ; Start pressure: -5 -> ; "
            "Place: A name of more than twenty -> A name of more than ; ");
  EXPECT_NE(reportText(plan).find(
                "Line 1 (d), there dive 12: taken as dive 1\n    Duration: '2730 s' became"),
            std::string::npos);
}

TEST(ForeignUddf, TakesCardAndEquipmentWhereTheyAreWanted) {
  const auto file = uddf(
      R"(<maker><manufacturer id="m"><name>Acme</name></manufacturer></maker>
<diver><owner id="o"><personal><firstname>Ann</firstname><lastname>Lee</lastname><birthdate><datetime>1970-04-03T00:00:00</datetime></birthdate></personal>
<address><street>A street with a very long name</street></address><contact><mobilephone>12</mobilephone></contact>
<equipment><manufacturer id="own"><name>Own</name></manufacturer><camera><body/></camera><suit id="s"><name>5mm</name></suit><regulator id="r"><name>Reg</name><manufacturer><link ref="m"/></manufacturer><purchase><price currency="EUR">90</price></purchase></regulator><suit id="t"><name>Dry</name><manufacturer ref="own"/><serialnumber>7</serialnumber></suit></equipment>
<education><certification><level>AOWD</level><instructor><personal><firstname>I</firstname><lastname>N</lastname></personal></instructor></certification></education></owner></diver>)");
  Book book;
  const auto path = book.folder.write("a.uddf", file);
  EXPECT_FALSE(book.plan(path, {}, {}, {}).takesCard());
  book.import(book.plan(path));
  const auto card = book.card();
  const auto text = [](const Cell& cell) { return cell.value_or("NULL"); };
  EXPECT_EQ(text(card[Karte::Vorname]) + text(card[Karte::Geb]) + text(card[Karte::Straße]) +
                text(card[Karte::Tel]) + text(card[Karte::Inst]),
            "Ann03.04.1970A street with a very12I N");
  const auto pieces = book.equipment();
  ASSERT_EQ(pieces.size(), 2U);
  EXPECT_EQ(text(pieces[0][Stück::Fabrikant]) + text(pieces[0][Stück::Preis]) +
                text(pieces[1][Stück::Gegenstand]) + text(pieces[1][Stück::Fabrikant]) +
                text(pieces[1][Stück::Nr]),
            "Acme90 EURDryOwn2");
  const auto again = book.plan(path);
  EXPECT_FALSE(again.takesCard());
  EXPECT_EQ(again.takesEquipment(), 0);
}

}  // namespace
}  // namespace nautrel::exchange
