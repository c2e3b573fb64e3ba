// SPDX-License-Identifier: GPL-2.0-or-later
#if __has_include(<sys/ptrace.h>)

#include "each_call.h"
#include "restore_test.h"
#include "support/budget.h"

// A restore is killed, or finds the disk full, at every single call of the system that changes a
// file; then the folder is looked at, and the restore is made again.

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;

/// The logbook is damaged instead, and a log lies beside it that only it can use.
const std::string kDamaged(20'000, 'x');
constexpr auto kItsLog = "its log";

std::string keptIn(const std::string& folder) {
  for (const auto& file : filesIn(folder))
    if (isDatedName(utf8(file.filename()), kReplaced)) return utf8(file);
  return {};
}

/// Looks at a copy of the folder, since to look through the engine changes what is there.
void expectWhole(const Restoring& it, bool damaged) {
  const TemporaryFolder seen;
  fs::copy(it.folder.path(), seen.path(), fs::copy_options::recursive);
  const auto logbook = seen.file(std::string(kLogbookFile));
  const auto kept = keptIn(seen.path());
  const auto isDamagedPair = [](const std::string& path) {
    return readFile(path) == kDamaged && readFile(path + "-wal") == kItsLog;
  };
  ASSERT_TRUE(fs::exists(logbook));
  if (damaged && readFile(logbook) == kDamaged) {
    EXPECT_TRUE(isDamagedPair(logbook) || isDamagedPair(kept));
    return;
  }
  const bool exchanged = damaged || numbersIn(logbook) != Restoring::kOld;
  if (exchanged) {
    EXPECT_EQ(numbersIn(logbook), Restoring::kNew);
    EXPECT_FALSE(fs::exists(it.path + "-wal"));
    EXPECT_TRUE(damaged ? isDamagedPair(kept) : numbersIn(kept) == Restoring::kOld);
  } else if (!kept.empty()) {
    EXPECT_EQ(numbersIn(kept), Restoring::kOld);
  }
}

void expectDoneAgain(Restoring& it) {
  ASSERT_EQ(it.tryToRestore(), 0);
  EXPECT_EQ(numbersIn(it.path), Restoring::kNew);
  for (const auto& name : it.names()) {
    const auto file = name.substr(0, name.rfind(".mdb") + 4);
    EXPECT_TRUE(name == "Logbuch.mdb" || name == "Logbuch.lock" ||
                (isDatedName(file, kReplaced) && fs::exists(it.folder.file(file))))
        << name;
  }
}

class RestoreMeets : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (!AtCall::isPossible()) GTEST_SKIP() << "no process may watch another here";
  }
  static void prepare(const Restoring& it) {
    if (!GetParam()) return;
    it.folder.write(std::string(kLogbookFile), kDamaged);
    it.folder.write(std::string(kLogbookFile) + "-wal", kItsLog);
  }

 private:
  const MemoryFolders fast_;
};
INSTANTIATE_TEST_SUITE_P(Logbook, RestoreMeets, testing::Bool(),
                         [](const auto& damaged) { return damaged.param ? "Damaged" : "Sound"; });

TEST_P(RestoreMeets, DeathAtEveryCall) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    Restoring it;
    prepare(it);
    const AtCall run(call, Meets::Death, [&] { return it.tryToRestore(); });
    ASSERT_EQ(run.result(), run.reached() ? -1 : 0);
    expectWhole(it, GetParam());
    if (HasFailure() || !run.reached()) break;
    expectDoneAgain(it);
    EXPECT_LT(call, 1000);
  }
}

TEST_P(RestoreMeets, AFullDiskAtEveryCall) {
  if (!kCallsCanFail) GTEST_SKIP() << "not on this processor";
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    Restoring it;
    prepare(it);
    const AtCall run(call, Meets::FullDisk, [&] { return it.tryToRestore(); });
    ASSERT_GE(run.result(), 0);
    expectWhole(it, GetParam());
    EXPECT_EQ(run.result() == 0, numbersIn(it.path) == Restoring::kNew);
    if (HasFailure() || !run.reached()) break;
    expectDoneAgain(it);
  }
}

TEST(Restore, MeetsDeathAtAnyMoment) {
  const Budget budget(20);
  for (int round = 0; budget.allows(round); ++round) {
    SCOPED_TRACE(round);
    Restoring it;
    const pid_t child = fork();
    if (child == 0) _exit(it.tryToRestore());
    usleep(static_cast<useconds_t>(round * 1500 % 30'000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    expectWhole(it, false);
    expectDoneAgain(it);
  }
}

}  // namespace
}  // namespace nautrel::exchange

#endif
