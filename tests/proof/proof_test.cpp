// SPDX-License-Identifier: GPL-2.0-or-later
#if __has_include(<sys/wait.h>)
#include <sys/mman.h>
#include <sys/wait.h>
#endif

#include <atomic>
#include <filesystem>
#include <iostream>
#include <new>

#include "proof/disk.h"
#include "proof/diver.h"
#include "store/contract.h"
#include "support/budget.h"

// A diver's work by chance, undisturbed and under everything that can befall a disk or a program:
// the file is always as it was between two rows, and never misses what was finished.

namespace nautrel {
namespace {

constexpr int kActions = 12;

class Proof : public LogbookTest {
 protected:
  Proof() {
    app.reset();
    Disk::heal();
    addDives(1, 4);
    Dive fins;
    for (const auto& column : logbookTables()[2].columns) fins[std::string(column.name)] = "fins";
    add(fins, "Ausrüstung");
    stored = storedIn(logbook);
    std::filesystem::rename(logbook, folder.file("begin"));
  }

  template <class Round>
  void eachSeed(int rounds, const Round& round) {
    const unsigned first = seedOfRun();
    unsigned seed = first;
    for (const Budget budget(rounds); budget.allows(static_cast<int>(seed - first)); ++seed) {
      SCOPED_TRACE("NAUTREL_SEED=" + std::to_string(seed));
      round(seed);
      if (HasFailure()) break;
    }
    std::cout << "seeds " << first << " to " << seed - 1 << '\n';
  }

  /// Works from the beginning for some actions, or until the disk fails; how many were finished.
  int work(Diver& diver) {
    int finished = 0;
    for (; finished < kActions; ++finished) {
      diver.act(*app, *desktop);
      if (Disk::hasFailed()) break;
    }
    (void)desktop->failure();
    app.reset();
    return finished;
  }

  /// What the diver of that seed does undisturbed, and how many calls of the disk it takes.
  std::pair<Diver, long> undisturbed(unsigned seed) {
    Disk::heal();
    begin();
    const long before = Disk::calls();
    Diver diver(seed, stored);
    work(diver);
    return {std::move(diver), Disk::calls() - before};
  }

  /// The disk fails at a call that the seed tells, and is whole again when the program has ended.
  void failAnywhere(unsigned seed, bool lasting, const std::function<void()>& afterwards = {}) {
    const int calls = static_cast<int>(undisturbed(seed).second);
    Disk::heal();
    begin();
    Disk::failAt(Disk::calls() + Dice(seed).below(calls), lasting);
    Diver diver(seed, stored);
    const int finished = work(diver);
    if (afterwards) afterwards();
    Disk::heal();
    expect(diver.story(), finished);
  }

  void expect(const Story& story, int finished) {
    const auto found = storedIn(logbook);
    EXPECT_TRUE(story.allows(found, finished)) << finished << " actions finished\n"
                                               << difference(found, story.states.back());
  }

  void begin() {
    std::filesystem::copy_file(folder.file("begin"), logbook,
                               std::filesystem::copy_options::overwrite_existing);
    for (const auto* side : {"-wal", "-shm"}) std::filesystem::remove(logbook + side);
    desktop = std::make_unique<ScriptedDesktop>(folder.path());
    desktop->dice = [](int count) { return count > 1 ? 1 : 0; };
    app = std::make_unique<Nautrel>(*desktop);
    start();
    desktop->messages();
  }

  const std::string logbook = folder.file("Logbuch.mdb");
  Stored stored;
};

TEST_F(Proof, WhatADiverDoesIsStoredAndShown) {
  eachSeed(20, [this](unsigned seed) {
    begin();
    Diver diver(seed, stored);
    for (int action = 0; action < kActions; ++action) {
      diver.act(*app, *desktop);
      ASSERT_EQ(diver.complaint(), "");
      ASSERT_FALSE(desktop->failure());
      const auto found = storedIn(logbook);
      const auto& wanted = diver.story().states.back();
      ASSERT_EQ(found.dives, wanted.dives);
      ASSERT_EQ(found.items, wanted.items);
      ASSERT_EQ(found.card, wanted.card);
    }
    app.reset();
  });
}

TEST_F(Proof, ADiskThatFailsOnceCostsNothingStored) {
  eachSeed(25, [this](unsigned seed) { failAnywhere(seed, false); });
}

TEST_F(Proof, ADiskThatFailsForGoodCostsNothingStored) {
  eachSeed(25, [this](unsigned seed) { failAnywhere(seed, true); });
}

TEST_F(Proof, APowerCutCostsNothingFinished) {
  eachSeed(50, [this](unsigned seed) {
    Dice dice(seed);
    failAnywhere(seed, true,
                 [&dice] { Disk::cutPower([&dice](int count) { return dice.below(count); }); });
  });
}

#if __has_include(<sys/wait.h>)
TEST_F(Proof, AKillCostsNothingFinished) {
  auto* const finished = new (mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                                   MAP_SHARED | MAP_ANONYMOUS, -1, 0)) std::atomic<int>();
  eachSeed(20, [&](unsigned seed) {
    const auto [whole, calls] = undisturbed(seed);
    Disk::heal();
    *finished = 0;
    const pid_t child = fork();
    if (child == 0) {
      begin();
      Disk::killAt(Disk::calls() + Dice(seed).below(static_cast<int>(calls)));
      for (Diver diver(seed, stored);; ++*finished) diver.act(*app, *desktop);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    expect(whole.story(), *finished);
  });
}
#endif

/// Bytes changed, cut off or added anywhere: the program goes on or ends with what it has to say,
/// and does so soon.
TEST_F(Proof, ADamagedLogbookEndsNoProgramWithoutASentence) {
  const auto whole = readFile(folder.file("begin"));
  eachSeed(40, [&](unsigned seed) {
    Disk::heal();
    Dice dice(seed);
    auto bytes = whole;
    const auto anywhere = [&] { return static_cast<std::size_t>(dice.below(int(bytes.size()))); };
    if (dice.oneIn(4)) bytes.resize(anywhere());
    if (dice.oneIn(8)) bytes.append(anywhere(), 'x');
    for (int count = dice.below(12); count > 0 && !bytes.empty(); --count)
      bytes[anywhere()] = static_cast<char>(dice.below(256));
    folder.write("begin", bytes);
    begin();
    Diver diver(seed, stored);
    for (int action = 0; action < kActions && !desktop->ended(); ++action)
      diver.act(*app, *desktop);
    if (const auto& failure = desktop->failure()) {
      EXPECT_FALSE(failure->text.empty());
    }
    app.reset();
  });
}

}  // namespace
}  // namespace nautrel
