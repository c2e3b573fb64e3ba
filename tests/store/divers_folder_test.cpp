// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/divers_folder.h"

#include <fstream>

#include "store/store_test.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

/// What a version brings with it, and what a diver has made of the version before.
class DiversFolder : public testing::Test {
 protected:
  void bring(const std::string& text, const std::string& content) {
    fs::create_directories(home.file(".delivered/new"));
    home.write(".delivered/new/" + text, content);
  }
  std::string content(const std::string& text) { return readFile(home.file(text)); }

  TemporaryFolder home;
  const std::string logbook = home.file("Logbuch.mdb");
};

TEST_F(DiversFolder, GetsALogbookOnlyWhereNoneWasAndNoLogWaits) {
  EXPECT_EQ(makeMissingLogbook(home.path()), "");
  EXPECT_FALSE(fs::exists(logbook));

  bring("Liste.rpt", "one");
  home.write("Logbuch.mdb-wal", "dives");
  EXPECT_NE(makeMissingLogbook(home.path()).find("Put the logbook back"), std::string::npos);
  EXPECT_FALSE(fs::exists(logbook));
  home.write("Logbuch.mdb-wal", "");
  EXPECT_EQ(makeMissingLogbook(home.path()), "");
  EXPECT_EQ(OtherProgram(logbook).run("SELECT count(*) FROM Logbuch"), "0");

  home.write("Logbuch.mdb", "of the diver's own");
  EXPECT_EQ(makeMissingLogbook(home.path()), "");
  EXPECT_EQ(content("Logbuch.mdb"), "of the diver's own");
  fs::remove(logbook);
  fs::create_directory(logbook);
  EXPECT_EQ(makeMissingLogbook(home.path()), "");
}

TEST_F(DiversFolder, KeepsEditedTextsAndRenewsTheOthers) {
  home.write("Liste.rpt", "nobody's");
  renewTexts(home.path());
  EXPECT_FALSE(fs::exists(home.file(".delivered")));
  for (const char* text : {"Liste.rpt", "Statistik.rpt", "Benutzer.rpt", "nautrel.rtf"})
    bring(text, "one");
  renewTexts(home.path());
  EXPECT_EQ(content("Liste.rpt"), "nobody's");
  home.write("Statistik.rpt", "edited");
  fs::remove(home.file("Benutzer.rpt"));
  for (const char* text : {"Liste.rpt", "Statistik.rpt", "Benutzer.rpt", "nautrel.rtf"})
    bring(text, "two");
  for (int starts = 0; starts < 2; ++starts) renewTexts(home.path());
  EXPECT_EQ(content("Liste.rpt"), "nobody's");
  EXPECT_EQ(content("Statistik.rpt"), "edited");
  EXPECT_EQ(content("Benutzer.rpt"), "two");
  EXPECT_EQ(content("nautrel.rtf"), "two");
  EXPECT_EQ(std::distance(fs::directory_iterator(home.path()), {}), 5);
}

TEST_F(DiversFolder, MayHaveALongNameInAnyScript) {
  auto folder = fs::path(home.path());
  for (int depth = 0; depth < 6; ++depth)
    folder /= u8"Zoës Tauchgänge 潜水, " + std::u8string(40, 'x');
  fs::create_directories(folder / ".delivered/new");
  std::ofstream(folder / ".delivered/new/Liste.rpt") << "one";
  const auto name = folder.u8string();
  const std::string path(name.begin(), name.end());
  EXPECT_EQ(makeMissingLogbook(path), "");
  renewTexts(path);
  EXPECT_TRUE(fs::is_regular_file(folder / "Logbuch.mdb"));
  EXPECT_TRUE(fs::is_regular_file(folder / "Liste.rpt"));
}

}  // namespace
}  // namespace nautrel
