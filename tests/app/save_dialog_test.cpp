// SPDX-License-Identifier: GPL-2.0-or-later
#include <filesystem>
#include <fstream>

#include "support/logbook.h"
#include "support/unwritable.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class SaveDialog : public LogbookTest {
 protected:
  SaveDialog() {
    addDives(1, 2);
    start();
    desktop->messages();
  }
  std::string belongs(const std::string& name) {
    return "'" + name + "' belongs to Nautrel itself. Please choose another name.";
  }
  std::string cannot(const std::string& name) {
    return "'" + name + "' cannot be written. Please choose another name.";
  }
  std::optional<std::string> choose(const std::string& name, DialogRequest request = {}) {
    desktop->answerFile(name);
    return desktop->saveFile(request);
  }
  /// Chooses the name, and after its refusal one that is free.
  std::string refusal(const std::string& name) {
    const auto free = elsewhere.file("free.txt");
    desktop->answerFile(name).answerFile(free);
    desktop->dialogs.clear();
    EXPECT_EQ(desktop->saveFile({}), free) << name;
    EXPECT_EQ(desktop->dialogs.back().fileName, name);
    const auto told = desktop->texts();
    return told.size() == 1 ? told.front() : std::to_string(told.size()) + " boxes";
  }

  TemporaryFolder elsewhere;
};

TEST_F(SaveDialog, NeverHandsBackAFileOfTheProgramsOwn) {
  const auto logbook = folder.file("Logbuch.mdb");
  fs::create_hard_link(logbook, elsewhere.file("hard.txt"));
  Texts names = {elsewhere.file("hard.txt"),
                 elsewhere.file("../" + fs::path(folder.path()).filename().string() + "/Liste.rpt"),
                 fs::relative(logbook).string()};
  if (kOnWindows) {
    for (const char* own : {"LOGBUCH.MDB", "liste.RPT", "Logbuch.mdb.", "Logbuch.mdb-wal. ."})
      names.push_back(folder.file(own));
  } else {
    fs::create_symlink(logbook, elsewhere.file("soft.txt"));
    fs::create_symlink("soft.txt", elsewhere.file("softer.txt"));
    fs::create_symlink(folder.file("Statistik.rpt"), elsewhere.file("not yet.txt"));
    fs::create_directory_symlink(folder.path(), elsewhere.file("folder"));
    for (const char* own :
         {"softer.txt", "not yet.txt", "folder/Logbuch.mdb", "folder/Logbuch.mdb-wal"})
      names.push_back(elsewhere.file(own));
  }
  for (const char* own :
       {"Logbuch.mdb", "Logbuch.mdb-wal", "Logbuch.mdb-shm", "Logbuch.mdb-journal", "Logbuch.lock",
        "Liste.rpt", "Statistik.rpt", "Benutzer.rpt", "nautrel.rtf", "nautrel", "nautrel-exchange"})
    names.push_back(folder.file(own));
  for (const auto& name : names) EXPECT_EQ(refusal(name), belongs(name));
  for (const char* other : {"list.txt", "Logbuch.mdb.txt", "Logbuch"})
    EXPECT_EQ(choose(folder.file(other)), folder.file(other));
  folder.write("Logbuch", "of the diver's own");
  EXPECT_EQ(choose(elsewhere.file("Logbuch.mdb")), elsewhere.file("Logbuch.mdb"));
  EXPECT_EQ(desktop->texts(), Texts{});
}

// A logbook that is itself a link has its side files where it leads.
TEST_F(SaveDialog, KnowsTheSideFilesOfALinkedLogbook) {
  NOT_ON_WINDOWS(kNoLinks);
  fs::rename(folder.file("Logbuch.mdb"), elsewhere.file("dives.mdb"));
  fs::create_symlink(elsewhere.file("dives.mdb"), folder.file("Logbuch.mdb"));
  restart();
  desktop->messages();
  for (const char* own : {"dives.mdb", "dives.mdb-wal", "dives.mdb-journal", "dives.lock"})
    EXPECT_EQ(refusal(elsewhere.file(own)), belongs(elsewhere.file(own)));
}

TEST_F(SaveDialog, RefusesWhatCannotBeWritten) {
  folder.write("list.txt", "");
  for (const auto& name : {folder.path(), folder.file(""), folder.file("no such folder/list.txt"),
                           folder.file("list.txt/list.txt"), elsewhere.file(std::string(300, 'x'))})
    EXPECT_EQ(refusal(name), cannot(name));
  NOT_ON_WINDOWS(kNoLinks);
  fs::create_symlink("round.txt", elsewhere.file("round.txt"));
  fs::create_symlink("gone/list.txt", elsewhere.file("into nothing.txt"));
  for (const auto& name : {elsewhere.file("round.txt"), elsewhere.file("into nothing.txt")})
    EXPECT_EQ(refusal(name), cannot(name));
}

TEST_F(SaveDialog, RefusesWhatThePersonMayNotWrite) {
  NOT_ON_WINDOWS(kNoModes);
  const auto file = folder.write("list.txt", "kept");
  fs::create_directory(folder.file("closed"));
  fs::permissions(file, fs::perms::owner_read);
  fs::permissions(folder.file("closed"), fs::perms::owner_read | fs::perms::owner_exec);
  for (const auto& open : {folder.path(), elsewhere.path()}) fs::permissions(open, fs::perms::all);
  const PlainUser person;
  for (const auto& name : {file, folder.file("closed/list.txt")})
    EXPECT_EQ(refusal(name), cannot(name));
}

TEST_F(SaveDialog, ChecksAndAsksAboutTheFinalName) {
  const DialogRequest pdf{.title = "Save as PDF", .flags = 2, .ending = ".pdf"};
  EXPECT_EQ(choose(folder.file("list"), pdf), folder.file("list.pdf"));
  EXPECT_EQ(choose(folder.file("List 2.0"), pdf), folder.file("List 2.0.pdf"));
  EXPECT_EQ(choose(folder.file("list.PDF"), pdf), folder.file("list.PDF"));
  EXPECT_EQ(choose(folder.file("Logbuch.mdb"), pdf), folder.file("Logbuch.mdb.pdf"));
  EXPECT_EQ(desktop->messages(), std::vector<Shown>{});

  const auto there = folder.write("there.pdf", "old");
  const Shown question{"'" + there + "' already exists. Do you want to replace it?", 308,
                       "Save as PDF"};
  desktop->answer(kNo).answer(kYes).answerFile(folder.file("there"));
  EXPECT_EQ(choose(folder.file("there"), pdf), there);
  EXPECT_EQ(desktop->messages(), (std::vector<Shown>{question, question}));
  EXPECT_EQ(choose(there), there);

  fs::create_hard_link(folder.file("Logbuch.mdb"), folder.file("own.pdf"));
  desktop->answerFile(folder.file("own")).answerFile({});
  EXPECT_EQ(desktop->saveFile(pdf), std::nullopt);
  EXPECT_EQ(desktop->texts(), Texts{belongs(folder.file("own.pdf"))});
}

}  // namespace
}  // namespace nautrel
