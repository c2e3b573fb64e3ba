// SPDX-License-Identifier: GPL-2.0-or-later
#include "restore_test.h"

#include <functional>

#include "store/lock.h"
#include "support/failure.h"
#include "support/unwritable.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using testing::IsSubstring;

constexpr auto kKept = "Logbuch-replaced-2026-11-21-190000.mdb";

TEST(Restore, TakesTheLogInAndKeepsTheFileBeside) {
  Restoring it;
  fs::permissions(it.path, fs::perms::owner_read | fs::perms::owner_write);
  const auto before = readFile(it.copy);
  const auto done = it.restore();
  EXPECT_EQ(done.kept, it.folder.file(kKept));
  EXPECT_FALSE(done.logKept);
  EXPECT_EQ(it.names(), (Names{kKept, "Logbuch.lock", "Logbuch.mdb"}));
  EXPECT_EQ(numbersIn(it.path), Restoring::kNew);
  EXPECT_EQ(numbersIn(done.kept), Restoring::kOld);
  if (!kOnWindows) {
    EXPECT_EQ(fs::status(it.path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  }
  EXPECT_TRUE(readFile(it.copy) == before);
  const auto again = restoreLogbook(it.path, done.kept, kNow);
  EXPECT_EQ(again.kept, it.folder.file("Logbuch-replaced-2026-11-21-190001.mdb"));
  EXPECT_EQ(numbersIn(it.path), Restoring::kOld);
}

TEST(Restore, KeepsTheLogOfADamagedFileWithIt) {
  Restoring it;
  const std::string damaged(20'000, 'x');
  it.folder.write("Logbuch.mdb", damaged);
  const auto log = it.folder.write("Logbuch.mdb-wal", "its log");
  it.folder.write("Logbuch.mdb-shm", "its index");
  EXPECT_TRUE(it.restore().logKept);
  EXPECT_EQ(it.names(), (Names{kKept, std::string(kKept) + "-wal", "Logbuch.lock", "Logbuch.mdb"}));
  EXPECT_EQ(readFile(it.folder.file(kKept)), damaged);
  EXPECT_EQ(readFile(it.folder.file(std::string(kKept) + "-wal")), "its log");
  EXPECT_EQ(numbersIn(it.path), Restoring::kNew);
}

TEST(Restore, PutsACopyWhereNoLogbookIsAndBehindALink) {
  Restoring gone;
  fs::remove(gone.path);
  EXPECT_EQ(gone.restore().kept, gone.folder.file(std::string(kKept) + "-wal"));
  EXPECT_EQ(numbersIn(gone.path), Restoring::kNew);
  EXPECT_FALSE(fs::exists(gone.path + "-wal"));

  NOT_ON_WINDOWS(kNoLinks);
  Restoring linked;
  const TemporaryFolder program;
  const auto link = program.file("Logbuch.mdb");
  fs::create_symlink(linked.path, link);
  EXPECT_EQ(restoreLogbook(link, linked.copy, kNow).kept, linked.folder.file(kKept));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(numbersIn(linked.path), Restoring::kNew);
}

TEST(Restore, RefusesWhatWouldCostTheLogbook) {
  Restoring it;
  const auto names = it.names();
  const auto refusedFor = [&](const std::string& copy) {
    return refusal([&] { restoreLogbook(it.path, copy, kNow); });
  };
  EXPECT_PRED_FORMAT2(IsSubstring, "is the logbook itself",
                      refusedFor(it.folder.file("./Logbuch.mdb")));
  {
    const LogbookLock other(it.path);
    EXPECT_EQ(refusedFor(it.copy), "This logbook is in use by another Nautrel program.");
  }
  sqlite3* damaged = nullptr;
  sqlite3_open(it.elsewhere.file("part.mdb").c_str(), &damaged);
  sqlite3_exec(damaged, "CREATE TABLE Logbuch (Nr)", nullptr, nullptr, nullptr);
  sqlite3_close(damaged);
  EXPECT_PRED_FORMAT2(IsSubstring, "no logbook that can be put",
                      refusedFor(it.elsewhere.file("part.mdb")));
  for (const auto& copy : {it.elsewhere.file("none.mdb"), it.elsewhere.write("letter", "Dear"),
                           it.elsewhere.write("empty.mdb", "")})
    EXPECT_NE(failureOf([&] { restoreLogbook(it.path, copy, kNow); }), 0) << copy;
  for (const auto& copy : {it.elsewhere.path(), unwritable(it.elsewhere.file("socket"))})
    EXPECT_EQ(refusedFor(copy), "'" + copy + "' is no file, so no logbook that can be put back.");
  fs::remove(it.folder.file("Logbuch.lock"));
  EXPECT_EQ(it.names(), names);
  EXPECT_EQ(numbersIn(it.path), Restoring::kOld);
}

TEST(Restore, RefusesWhileAnotherToolHasTheLogbookOpen) {
  Restoring it;
  sqlite3* other = nullptr;
  sqlite3_open(it.path.c_str(), &other);
  sqlite3_exec(other, "SELECT * FROM Logbuch", nullptr, nullptr, nullptr);
  EXPECT_PRED_FORMAT2(IsSubstring, "open in another program", refusal([&] { it.restore(); }));
  sqlite3_close(other);
  EXPECT_EQ(it.restore().kept, it.folder.file(kKept));
}

TEST(Restore, ReadsACopyThatCannotBeWrittenAndAnswersWhereItselfMayNotWrite) {
  NOT_ON_WINDOWS(kNoModes);
  Restoring it;
  constexpr fs::perms kReadOnly{0755};
  for (const auto& folder : {it.folder.path(), it.elsewhere.path()})
    fs::permissions(folder, kReadOnly);
  const auto before = readFile(it.path);
  {
    const PlainUser diver;
    EXPECT_PRED_FORMAT2(IsSubstring, "Nothing can be written into", refusal([&] { it.restore(); }));
  }
  EXPECT_TRUE(readFile(it.path) == before);
  fs::permissions(it.folder.path(), fs::perms::all);
  for (const auto* side : {"", "-wal", "-shm"})
    if (fs::exists(it.path + side)) fs::permissions(it.path + side, fs::perms::all);
  const PlainUser diver;
  EXPECT_EQ(it.restore().kept, it.folder.file(kKept));
  EXPECT_EQ(numbersIn(it.path), Restoring::kNew);
  EXPECT_EQ(fs::status(it.path).permissions(), fs::perms(0677)) << "its owner is another now";
}

}  // namespace
}  // namespace nautrel::exchange
