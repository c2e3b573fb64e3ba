// SPDX-License-Identifier: GPL-2.0-or-later
#include <sys/stat.h>

#include <random>

#include "exchange/csv_writer.h"
#include "exchange/xml_tree.h"
#include "exchange_test.h"

namespace nautrel::exchange {
namespace {

std::string uddf(const std::string& inside) {
  return "<uddf>" + inside + "</uddf>";
}

std::string deep(int levels) {
  std::string file = "<uddf>";
  for (int level = 0; level < levels; ++level) file += "<a>";
  return file;
}

std::string many(const std::string& text, int times) {
  std::string all;
  for (int count = 0; count < times; ++count) all += text;
  return all;
}

/// A file of ours whose first flag was changed elsewhere.
std::string ownCsv(const std::string& flag) {
  std::string file;
  appendCsvHeader(file, ',');
  appendCsvDive(file, ',', plainDive("1"));
  return file.replace(file.find(",0,"), 3, "," + flag + ",");
}

const std::string kHead = "Date,Duration,Max Depth (m)\n";
const std::string kDive = "2001-03-05,45,10\n";

TEST(BadInput, IsRefusedWithOneSentenceAndItsPlace) {
  struct Case {
    const char* name;
    std::string content;
    const char* sentence;
  };
  const std::string bomb =
      "<?xml version='1.0'?><!DOCTYPE uddf [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>]>"
      "<uddf>&b;</uddf>";
  const Case cases[] = {
      {"a.uddf", "", "is empty."},
      {"b.csv", "", "is empty."},
      {"c.uddf", "rubbish", "syntax error in line 1."},
      {"d.uddf", std::string("\0\1\2\3", 4), "in line 1."},
      {"e.uddf", uddf("<dive>\n").substr(0, 11), "it breaks off in line 1."},
      {"f.uddf", "<uddf><dive>\n</uddf>", "mismatched tag in line 2."},
      {"g.uddf", bomb, "a DOCTYPE stands in line 1."},
      {"h.uddf", "<!DOCTYPE uddf SYSTEM 'file:///etc/passwd'><uddf/>",
       "a DOCTYPE stands in line 1."},
      {"i.uddf", uddf("&nbsp;"), "undefined entity in line 1."},
      {"j.uddf", deep(64), "elements too deep in line 1."},
      {"k.uddf", uddf(""), "holds no dives."},
      {"l.uddf", "<html><body/></html>", "is no UDDF file: it begins with <html>."},
      {"m.uddf", "<?xml version='1.0' encoding='EBCDIC-7'?><uddf/>", "unknown encoding in line 1."},
      {"n.uddf", uddf("\n<dive><x>\xE4</x></dive>"), "(invalid token) in line 2."},
      {"o.uddf", uddf("<dive/><dive>" + many("<a/>", 100'001) + "</dive>"),
       "Too many elements, up to line 1."},
      {"p.uddf", uddf("<dive>\n<notes>" + std::string((1U << 20) + 1, 'x') + "</notes></dive>"),
       "The text of <notes> in line 2 is longer than 1 MB."},
      {"q.uddf", uddf(many("<dive/>", 10'000)), "holds more than 9999 dives."},
      {"r.uddf",
       uddf("<dive><applicationdata>\n<nautrel xmlns='urn:nautrel:logbook:1' dec='.'>"
            "<f n='Tiefe' enc='base64'>*</f></nautrel></applicationdata></dive>"),
       "The private block of Nautrel in line 2 is damaged."},
      {"7.uddf", uddf("<dive><applicationdata><nautrel/></applicationdata></dive>"),
       "The private block of Nautrel in line 1 is damaged."},
      {"s.csv", kHead, "holds no dives."},
      {"t.csv", kHead + kDive + "2001-03-06,45\n", "line 3 has 2 cells, the header 3."},
      {"u.csv", kHead + kDive + "2001-03-06,45,1,2\n", "line 3 has 4 cells, the header 3."},
      {"v.csv", kHead + "\n2001-03-06,\"45,1\n", "The quotation mark of line 3 is never closed."},
      {"w.csv", "a,b\n1,2\n", "line 1 names no column for the date."},
      {"x.csv", "one single line of a text", "names no column for the date."},
      {"y.csv", "dive number,date,sample time (min),sample depth (m)\n1,2001-03-05,0:10,3\n",
       "holds the profile of a dive and no list of dives."},
      {"z.csv",
       "\xFF\xFE"
       "D\0a\0",
       "is in UTF-16. Please save it as UTF-8."},
      {"1.csv", kHead + many(kDive, 10'000), "holds more than 9999 dives."},
      {"2.csv", many("a,", 300) + "\n", "Line 1 has more than 200 columns."},
      {"3.csv", kHead + "2001-02-30,45,10\n",
       "the one of line 2 is left out since its date "
       "'2001-02-30' is none."},
      {"4.csv", kHead + "2001-02-03,45,-10\n", "since the depth -10 is negative."},
      {"5.uddf",
       uddf("<dive><datetime>2001-03-05</datetime><greatestdepth>NaN</greatestdepth>"
            "<diveduration>60</diveduration></dive>"),
       "since its depth 'NaN' is none."},
      {"6.dat", "x", "tells no format: .uddf, .xml, .csv, .tsv and .txt are known."},
      {"8.csv", "\xEF\xBB\xBF" + kHead + "2001-03-05,45,10 m \xC3\xA4\n2001-03-05,45,10 \xE4\n",
       "is marked as UTF-8 and is none in line 3."},
      {"9.csv",
       "Date,Duration,Max Depth (m),Notes\n2001-03-05,45,10," + std::string((1U << 20) + 1, 'x') +
           "\n",
       "a text in line 2 is longer than 1 MB."},
      {"0.csv", ownCsv("2"), "'Salt' in line 2 is '2', neither 0 nor 1."},
      {"A.csv", ownCsv(""), "'Salt' in line 2 is '', neither 0 nor 1."},
      {"B.uddf",
       uddf("<dive><applicationdata>\n<nautrel dec='.'><f n='Salz'>yes</f></nautrel>"
            "</applicationdata></dive>"),
       "The private block of Nautrel in line 2 is damaged."},
  };
  Book book;
  for (const auto& each : cases) {
    const auto path = book.folder.write(each.name, each.content);
    const auto sentence = refusal([&] { book.plan(path).execute(book.workspace, book.path); });
    EXPECT_NE(sentence.find(each.sentence), std::string::npos)
        << each.name << ": " << sentence.substr(0, 200);
  }
  EXPECT_TRUE(book.dives().empty());
}

TEST(BadInput, NeedsAFile) {
  Book book;
  const auto sentence = [&](const std::string& path) {
    return refusal([&] { openSource(path, Format::Uddf); });
  };
#ifndef _WIN32
  const auto pipe = book.folder.file("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_NE(sentence(pipe).find("is no file that can be read."), std::string::npos);
#endif
  EXPECT_NE(sentence(book.folder.path()).find("is no file that can be read."), std::string::npos);
  EXPECT_NE(sentence(book.folder.file("none")).find("is not there."), std::string::npos);
  const auto large = book.folder.write("large", "");
  std::filesystem::resize_file(large, (256U << 20) + 1);
  EXPECT_NE(sentence(large).find("is larger than 256 MB."), std::string::npos);
}

/// Of elements that each are small enough there may be no end either.
TEST(BadInput, HasNoMoreElementsThanAnyLogbook) {
  constexpr const char* kNone = nullptr;
  XmlCollector collector(5);
  const auto dive = [&] {
    for (const char* name : {"dive", "a", "para"}) collector.begin(name, XmlAttributes(&kNone), 7);
    while (!collector.end()) {
    }
  };
  dive();
  dive();
  EXPECT_EQ(refusal(dive), "Too many elements, up to line 7.");
}

/// A comment without end would be looked at again with every block.
TEST(BadInput, CostsNoTimeWithoutEnd) {
  Book book;
  const auto path = book.folder.write("a.uddf", "<uddf><!--" + std::string(24U << 20, 'x'));
  EXPECT_NE(refusal([&] { openSource(path); }).find("does not come to its end"), std::string::npos);
}

/// Whatever byte of a file is lost or changed: it is read, or refused.
TEST(BadInput, OfAnyKindIsReadOrRefused) {
  Book book;
  auto dive = plainDive("1");
  dive.texts[Feld::Lang] = "a\nb";
  book.add(dive);
  for (const auto* name : {"a.uddf", "a.csv"}) {
    const auto whole = book.exported(name, {.format = *formatOf(name)});
    std::mt19937 chance(1);
    for (int round = 0; round < 100; ++round) {
      auto file = whole;
      const auto place = chance() % file.size();
      if (round % 3 == 0)
        file.resize(place);
      else if (round % 3 == 1)
        file.erase(place, 1 + chance() % 20);
      else
        file[place] = static_cast<char>(chance());
      const auto path = book.folder.write(name, file);
      EXPECT_NO_THROW(refusal([&] { openSource(path)->dives({}, {}); })) << round;
    }
  }
}

}  // namespace
}  // namespace nautrel::exchange
