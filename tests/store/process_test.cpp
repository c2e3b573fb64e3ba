// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/store_test.h"

#if __has_include(<sys/wait.h>)

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <map>

#include "store/lock.h"
#include "store/numbering.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

/// Another process that runs a piece of the program and tells numbers on the way.
class Child {
 public:
  using Tell = std::function<void(int)>;

  explicit Child(const std::function<void(const Tell&)>& run) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    process_ = fork();
    if (process_ == 0) {
      ::close(ends[0]);
      const auto tell = [&](int number) {
        if (write(ends[1], &number, sizeof number) != sizeof number) _exit(2);
      };
      const int failure = failureOf([&] { run(tell); });
      if (failure != 0) tell(-failure);
      _exit(0);
    }
    ::close(ends[1]);
    told_ = ends[0];
  }
  ~Child() { ::close(told_); }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  void kill() { ::kill(process_, SIGKILL); }

  /// Waits for the next number that it tells; false at its end.
  bool next(int& number) { return read(told_, &number, sizeof number) == sizeof number; }

  /// Waits for the end; the last number that it told, 0 if none.
  int wait() {
    int number = 0;
    while (next(number)) {
    }
    waitpid(process_, nullptr, 0);
    return number;
  }

 private:
  pid_t process_ = 0;
  int told_ = 0;
};

/// Permissions bind only those who are not the administrator.
void becomeDiver() {
  constexpr int kNobody = 65534;
  if (getuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(3);
}

class ProcessTest : public StoreTest {
 protected:
  std::map<std::string, std::uintmax_t> files() const {
    std::map<std::string, std::uintmax_t> sizes;
    for (const auto& entry : fs::directory_iterator(folder))
      sizes[entry.path().filename().string()] = entry.file_size();
    return sizes;
  }
};

TEST_F(ProcessTest, TwoProgramsOnOneLogbookLoseNothing) {
  const auto append = [&] {
    Workspace own;
    for (int dive = 0; dive < 150; ++dive) {
      auto rows = own.OpenDatabase(path).OpenRecordset(Tabelle::Logbuch);
      rows.AddNew();
      rows.setField("Nr", dive);
      rows.Update();
      if (dive % 10 == 0) own.settle();
    }
  };
  Child first([&](const Child::Tell&) { append(); });
  Child second([&](const Child::Tell& tell) {
    Workspace own;
    for (int times = 0; times < 20; ++times) resumeNext([&] { renumber(own, path, 1); });
    tell(1);
  });
  append();
  EXPECT_EQ(first.wait(), 0);
  EXPECT_EQ(second.wait(), 1);
  EXPECT_EQ(table().RecordCount(), 300);
  EXPECT_EQ(otherProgram("PRAGMA integrity_check"), "ok");
}

TEST_F(ProcessTest, OfManyWhoMakeTheLogbookOneSucceeds) {
  const auto fresh = (folder / "fresh.mdb").string();
  const auto make = [&](const Child::Tell& tell) { tell(createDeliveredLogbook(fresh) ? 1 : 0); };
  Child one(make);
  Child two(make);
  Child three(make);
  EXPECT_EQ(one.wait() + two.wait() + three.wait(), 1);
  EXPECT_EQ(workspace.OpenDatabase(fresh).OpenRecordset(Tabelle::Benutzer).RecordCount(), 1);
  EXPECT_EQ(files().size(), 2U);
}

/// Another program that lives on; it runs as such when this returns.
void startSleeper() {
  std::string name = "sleep";
  std::string seconds = "3";
  char* arguments[] = {name.data(), seconds.data(), nullptr};
  pid_t process = 0;
  ASSERT_EQ(posix_spawnp(&process, "sleep", nullptr, nullptr, arguments, environ), 0);
}

TEST_F(ProcessTest, OneProgramAtATimeUntilItsDeath) {
  const TemporaryFolder elsewhere;
  const auto link = elsewhere.file("link.mdb");
  fs::create_symlink(path, link);
  for (const auto& used : {path, link}) {
    Child first([&](const Child::Tell& tell) {
      const LogbookLock lock(used);
      startSleeper();
      tell(lock.isInUse() ? 2 : 1);
      pause();
    });
    int told = 0;
    ASSERT_TRUE(first.next(told));
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(LogbookLock(path).isInUse());
    EXPECT_TRUE(LogbookLock(link).isInUse());
    first.kill();
    first.wait();
    EXPECT_FALSE(LogbookLock(path).isInUse());
  }
  EXPECT_EQ(LogbookLock::fileFor(link), home.file("Logbuch.lock"));
  EXPECT_EQ(LogbookLock::fileFor(elsewhere.file("gone.mdb")), "");
}

TEST_F(ProcessTest, WhereNothingCanBeLockedTheLogbookIsFree) {
  fs::permissions(folder, fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  Child alone([&](const Child::Tell& tell) {
    becomeDiver();
    tell(LogbookLock(path).isInUse() ? 2 : 1);
  });
  EXPECT_EQ(alone.wait(), 1);
  EXPECT_FALSE(fs::exists(LogbookLock::fileFor(path)));
  const LogbookLock owner(path);
  Child guest([&](const Child::Tell& tell) {
    becomeDiver();
    tell(LogbookLock(path).isInUse() ? 2 : 1);
  });
  EXPECT_EQ(guest.wait(), 2);
}

TEST_F(ProcessTest, AReadOnlyFolderFailsAtOpeningAndAReadOnlyFileWhenItIsChanged) {
  using fs::perms;
  addDives(1, 1);
  const auto before = files();
  const auto failureOfDiver = [&](auto change) {
    Child child([&](const Child::Tell&) {
      becomeDiver();
      Workspace own;
      auto dives = own.OpenDatabase(path).OpenDynaset(Tabelle::Logbuch);
      change(dives);
    });
    return -child.wait();
  };
  const auto adds = [](Recordset& dives) { dives.AddNew(); };
  const auto edits = [](Recordset& dives) { dives.Edit(); };
  fs::permissions(path, perms::all);
  fs::permissions(folder,
                  perms::owner_read | perms::owner_exec | perms::others_read | perms::others_exec);
  EXPECT_EQ(failureOfDiver(adds), CannotOpenFile);
  EXPECT_EQ(files(), before);
  fs::permissions(folder, perms::all);
  fs::permissions(path, perms::owner_read | perms::others_read);
  EXPECT_EQ(failureOfDiver(adds), DatabaseReadOnly);
  EXPECT_EQ(failureOfDiver(edits), DatabaseReadOnly);
  EXPECT_EQ(files().at("Logbuch.mdb"), before.at("Logbuch.mdb"));
}

TEST_F(ProcessTest, AFullDiskIsLookedAtUnlessALogWaits) {
  addDives(1, 2);
  const auto before = readFile(path);
  for (const bool crashed : {false, true}) {
    if (crashed) home.write(std::string(kLogbookFile) + "-wal", "what a crash left");
    Child child([&](const Child::Tell& tell) {
      std::signal(SIGXFSZ, SIG_IGN);
      const rlimit nothing{1000, 1000};
      setrlimit(RLIMIT_FSIZE, &nothing);
      Workspace own;
      auto dives = own.OpenDatabase(path).OpenDynaset(Tabelle::Logbuch);
      dives.MoveLast();
      tell(std::stoi(number(dives)));
      dives.Edit();
    });
    int told = 0;
    ASSERT_TRUE(child.next(told));
    EXPECT_EQ(told, crashed ? -DiskFull : 2);
    EXPECT_EQ(child.wait(), crashed ? 0 : -DiskFull);
    EXPECT_TRUE(readFile(path) == before);
  }
}

}  // namespace
}  // namespace nautrel

#endif
