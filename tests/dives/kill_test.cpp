// SPDX-License-Identifier: GPL-2.0-or-later
#if __has_include(<sys/wait.h>)

#include <sqlite3.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <limits>
#include <new>

#include "dives/Form5.h"
#include "dives/Form8.h"
#include "shell/Form1.h"
#include "support/logbook.h"
#include "support/repaints.h"

// The program is stopped in the middle of its work, as by the power switch, and the logbook is
// opened again.

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kNotSorted =
    "Attention! The dives are not sorted correctly. Please select 'Sort logbook'. "
    "Otherwise there could be program errors.";

constexpr int kThrough = std::numeric_limits<int>::max();

/// How far the child has come, in memory that both processes see.
std::atomic<int>& sharedSteps() {
  using Steps = std::atomic<int>;
  static_assert(Steps::is_always_lock_free);
  static void* const page =
      mmap(nullptr, sizeof(Steps), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (page == MAP_FAILED) throw std::bad_alloc();
  return *new (page) Steps(0);
}

class Killed : public LogbookTest {
 protected:
  using Work = std::function<void(Nautrel&, ScriptedDesktop&, std::atomic<int>&)>;

  /// Lets another process do the work until `step` steps of it are finished, and kills it there.
  /// Returns how many steps were finished for certain; kThrough if it could not be stopped in time.
  int killAfter(int step, const Work& work) {
    app.reset();
    auto& steps = sharedSteps();
    const pid_t child = fork();
    if (child == 0) {
      ScriptedDesktop itsDesktop(folder.path());
      Nautrel itsProgram(itsDesktop);
      work(itsProgram, itsDesktop, steps);
      steps = kThrough;
      for (;;) pause();
    }
    while (steps < step && waitpid(child, nullptr, WNOHANG) == 0) usleep(100);
    const int finished = steps;
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    return finished;
  }

  void sql(const std::string& statements) { ask(statements); }
  /// The first value that the statement gives.
  std::string ask(const std::string& statement) {
    sqlite3* file = nullptr;
    std::string answer;
    EXPECT_EQ(sqlite3_open(folder.file("Logbuch.mdb").c_str(), &file), SQLITE_OK);
    const auto keep = [](void* first, int, char** values, char**) {
      if (auto& text = *static_cast<std::string*>(first); text.empty()) text = values[0];
      return 0;
    };
    EXPECT_EQ(sqlite3_exec(file, statement.c_str(), keep, &answer, nullptr), SQLITE_OK);
    sqlite3_close(file);
    return answer;
  }
  int count(const std::string& which) {
    return std::stoi(ask("SELECT count(*) FROM Logbuch WHERE " + which));
  }
  /// Dives with twice their place as number, so that every renumbering shows in the file.
  void fill(int dives) {
    sql("DELETE FROM Logbuch;"
        "WITH RECURSIVE place(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM place WHERE i < " +
        std::to_string(dives) +
        ") INSERT INTO Logbuch (rowid, Nr, Ort) SELECT i, 2 * i, i FROM place");
  }
};

void open(Nautrel& app, MenuItem MDIForm1::*command) {
  app.start();
  app.Form1().Timer1.userFires();
  click(app.MDIForm1().*command);
}

void sortLogbook(Nautrel& app, ScriptedDesktop& desktop, std::atomic<int>& steps) {
  Repaints looks([&](Control& control) {
    if (const auto* bar = dynamic_cast<ProgressBar*>(&control))
      steps = static_cast<int>(bar->Value());
  });
  app.setLooks(&looks);
  open(app, &MDIForm1::Menü1d);
  desktop.answer(kYes);
  click(app.Form8().Command1);
}

TEST_F(Killed, InsideARenumberingTheFinishedStepsStand) {
  constexpr int kDives = 9999;
  constexpr int kMoments = 50;
  int stopped = 0;
  for (int moment = 0; moment < kMoments; ++moment) {
    SCOPED_TRACE(moment);
    fill(kDives);
    const int finished = killAfter(1 + moment * (kDives / kMoments), sortLogbook);

    ASSERT_EQ(ask("PRAGMA integrity_check"), "ok");
    ASSERT_EQ(count("Ort = rowid"), kDives);
    const int done = count("Nr = rowid");
    ASSERT_GE(done, std::min(finished, kDives));
    ASSERT_EQ(count("rowid > " + std::to_string(done) + " AND Nr = 2 * rowid"), kDives - done);
    restart();
    stopped += done < kDives ? 1 : 0;
    ASSERT_EQ(desktop->texts(), done < kDives ? Texts{kNotSorted} : Texts{});
  }
  EXPECT_GT(stopped, kMoments / 2);
  click(app->MDIForm1().Menü1d);
  desktop->answer(kYes);
  click(app->Form8().Command1);
  desktop->messages();
  restart();
  EXPECT_EQ(desktop->texts(), Texts{});
  EXPECT_EQ(count("Nr = rowid AND Ort = rowid"), kDives);
}

void deleteAllButTheEnds(Nautrel& app, ScriptedDesktop& desktop, std::atomic<int>& steps) {
  open(app, &MDIForm1::Menü2c);
  auto& form = app.Form5();
  choose(form.SSTab1, 1);
  type(form.Text6, "2");
  type(form.Text7, "1999");
  // The first move goes to the row where the deletion begins.
  form.Data1.Reposition = [&, moves = -2]() mutable { steps = std::max(0, ++moves); };
  desktop.answer(kYes);
  click(form.Command4);
}

TEST_F(Killed, InsideARangeDeletionTheDeletedDivesAreGoneAndNoOther) {
  constexpr int kDives = 2000;
  for (int moment = 0; moment < 10; ++moment) {
    SCOPED_TRACE(moment);
    fill(kDives);
    sql("UPDATE Logbuch SET Nr = rowid");
    const int finished = killAfter(1 + moment * 150, deleteAllButTheEnds);

    ASSERT_EQ(ask("PRAGMA integrity_check"), "ok");
    const int deleted = kDives - count("1");
    ASSERT_GE(deleted, std::min(finished, kDives - 2));
    ASSERT_EQ(count("Nr = rowid AND Ort = rowid AND (rowid = 1 OR rowid > " +
                    std::to_string(deleted + 1) + ")"),
              kDives - deleted);
    restart();
    ASSERT_EQ(desktop->texts(), Texts{kNotSorted});
  }
}

}  // namespace
}  // namespace nautrel

#endif
