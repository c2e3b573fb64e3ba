// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/backup.h"

#include "restore_test.h"
#include "support/unwritable.h"
#if __has_include(<sys/ptrace.h>)
#include "each_call.h"
#endif

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using testing::IsSubstring;

constexpr auto kMade = "Logbuch-2026-11-21-190000.mdb";

/// A logbook whose last dive waits in its log, and a folder for its backups.
struct Keeping : Restoring {
  Backup backUp(std::optional<int> keep = {}) {
    return backUpLogbook(path, backups.path(), keep, kNow);
  }
  Names kept() const {
    Names all;
    for (const auto& file : filesIn(backups.path())) all.push_back(utf8(file.filename()));
    std::sort(all.begin(), all.end());
    return all;
  }
  TemporaryFolder backups;
};

TEST(Backup, HoldsWhatIsStoredWhileTheProgramWrites) {
  Keeping it;
  Workspace program;
  auto dives = program.OpenDatabase(it.path).OpenRecordset(Tabelle::Logbuch);
  appendDive(dives, plainDive("4"));
  sqlite3* writing = nullptr;
  sqlite3_open(it.path.c_str(), &writing);
  sqlite3_exec(writing, "BEGIN IMMEDIATE; DELETE FROM Logbuch", nullptr, nullptr, nullptr);
  EXPECT_EQ(it.backUp().file, it.backups.file(kMade));
  EXPECT_EQ(it.backUp().file, it.backups.file("Logbuch-2026-11-21-190001.mdb"));
  sqlite3_close(writing);
  EXPECT_EQ(it.kept(), (Names{kMade, "Logbuch-2026-11-21-190001.mdb"}));
  EXPECT_EQ(numbersIn(it.backups.file(kMade)), "1 2 3 4 ");
}

TEST(Backup, DeletesOnlyEarlierBackups) {
  Keeping it;
  const Names others = {"Logbuch-2026-11-19.mdb",
                        "Logbuch-2026-11-19-120000.mdb.txt",
                        "Logbuch-2026-11-1x-120000.mdb",
                        "Logbuch-replaced-2026-11-19-120000.mdb",
                        "Logbuch.mdb",
                        "Logbuch-2026-11-19-120000.mdb.newer"};
  for (const auto& name : others) it.backups.write(name, "mine");
  if (!kOnWindows) fs::create_symlink(it.path, it.backups.file("Logbuch-2026-11-18-120000.mdb"));
  fs::create_directory(it.backups.file("Logbuch-2026-11-17-120000.mdb"));
  const auto before = it.kept();
  for (const char* name : {"Logbuch-2026-11-19-120000.mdb", "Logbuch-2026-11-20-120000.mdb",
                           "Logbuch-2026-11-19-120000.mdb.new12"})
    it.backups.write(name, "ours");
  EXPECT_EQ(it.backUp(2).deleted, Names{it.backups.file("Logbuch-2026-11-19-120000.mdb")});
  auto expected = before;
  expected.insert(expected.end(), {"Logbuch-2026-11-20-120000.mdb", kMade});
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(it.kept(), expected);
  EXPECT_EQ(it.backUp(1).deleted.size(), 2U);
}

TEST(Backup, RefusesWithoutDeletingAnything) {
  Keeping it;
  it.backups.write("Logbuch-2026-11-20-120000.mdb", "the last sound one");
  EXPECT_PRED_FORMAT2(IsSubstring, "no folder",
                      refusal([&] { backUpLogbook(it.path, it.copy, 1, kNow); }));
  fs::permissions(it.backups.path(), fs::perms(0555));
  if (!kOnWindows) {
    const PlainUser diver;
    EXPECT_PRED_FORMAT2(IsSubstring, "Nothing can be written into", refusal([&] { it.backUp(1); }));
  }
  fs::permissions(it.backups.path(), fs::perms(0755));
  sqlite3* other = nullptr;
  sqlite3_open(it.path.c_str(), &other);
  sqlite3_exec(other, "DROP TABLE Statistik", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_PRED_FORMAT2(IsSubstring, "not sound", refusal([&] { it.backUp(1); }));
  EXPECT_EQ(it.kept(), Names{"Logbuch-2026-11-20-120000.mdb"});
}

#if __has_include(<sys/ptrace.h>)

TEST(Backup, IsWholeOrNotThereWhateverItMeets) {
  if (!AtCall::isPossible()) GTEST_SKIP() << "no process may watch another here";
  const MemoryFolders fast;
  for (const auto fate : {Meets::Death, Meets::FullDisk}) {
    if (fate == Meets::FullDisk && !kCallsCanFail) break;
    for (int call = 1;; ++call) {
      SCOPED_TRACE(call);
      Keeping it;
      const auto backUp = [&] { return succeeds([&] { it.backUp(); }) ? 0 : 1; };
      const AtCall run(call, fate, backUp);
      auto kept = it.kept();
      if (fate == Meets::Death)
        std::erase_if(kept, [](const auto& name) { return name.find(".new") != name.npos; });
      EXPECT_LE(kept.size(), 1U);
      EXPECT_TRUE(run.result() != 0 || kept == Names{kMade});
      for (const auto& name : kept) EXPECT_EQ(numbersIn(it.backups.file(name)), Restoring::kOld);
      if (testing::Test::HasFailure() || !run.reached()) break;
    }
  }
}

#endif

}  // namespace
}  // namespace nautrel::exchange
