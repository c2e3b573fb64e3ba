// SPDX-License-Identifier: GPL-2.0-or-later
#if __has_include(<sys/wait.h>)

#include "exchange/command.h"

#include <sys/wait.h>

#include <sstream>

#include "exchange/json.h"
#include "restore_test.h"
#include "store/lock.h"
#include "support/unwritable.h"
#if __has_include(<sys/ptrace.h>)
#include "each_call.h"
#endif

// The companion as a person at a shell knows it: the executable in the delivered folder, without a
// display.

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;
using testing::IsSubstring;

constexpr auto kInUse = "This logbook is in use by another Nautrel program.\n";

struct Said {
  int status = 0;
  std::string out;
  std::string err;
};

/// A delivered folder with a shell that stands in it.
struct Shell : Book {
  Shell() {
    const auto program = folder.file("nautrel-exchange");
    std::error_code failed;
    fs::create_hard_link(NAUTREL_EXCHANGE, program, failed);
    if (failed) fs::copy_file(NAUTREL_EXCHANGE, program);
  }
  Said run(const std::string& line, const std::string& locale = "C") const {
    const auto command =
        "cd " + folder.path() +
        " && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM LC_ALL=" + locale +
        " ./nautrel-exchange " + line + " >" + said.file("out") + " 2>" + said.file("err");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(said.file("out")),
            readFile(said.file("err"))};
  }
  void addDives(int count) {
    for (int number = 1; number <= count; ++number)
      add(plainDive(std::to_string(number), std::to_string(40 + number)));
    workspace.settle();
  }
  TemporaryFolder said;
};

TEST(Command, TellsHowItIsUsed) {
  const Shell shell;
  EXPECT_EQ(shell.run("--help").status, kDone);
  EXPECT_PRED_FORMAT2(IsSubstring, "--durations", shell.run("import --help").out);
  for (const char* line :
       {"", "dive", "import", "export", "backup", "restore", "check now", "import a.csv b.csv",
        "import a.csv --dates ymd", "import a.csv --insist first", "import a.csv --keep 1",
        "export a.csv --from x", "export a.csv --from -1", "export a.csv --to 0",
        "export a.csv --from 3 --to 2", "export a.txt2", "export a --format xls",
        "backup . --keep 0", "check --loud"}) {
    SCOPED_TRACE(line);
    const auto said = shell.run(line);
    EXPECT_EQ(said.status, kWrongUse);
    EXPECT_EQ(said.out, "");
    EXPECT_NE(said.err, "");
  }
  EXPECT_EQ(filesIn(shell.folder.path()).size(), 2U) << "nothing was made";
}

TEST(Command, TakesDivesOutAndInAgain) {
  for (const std::string file : {"dives.uddf", "dives.csv"}) {
    SCOPED_TRACE(file);
    Shell shell;
    shell.addDives(4);
    EXPECT_PRED_FORMAT2(IsSubstring, "2 dives",
                        shell.run("export " + file + " --from 2 --to 3").out);
    EXPECT_EQ(shell.run("export " + file).status, kRefused);
    EXPECT_PRED_FORMAT2(IsSubstring, "no dive with such a number",
                        shell.run("export 0" + file + " --from 5").err);
    EXPECT_FALSE(fs::exists(shell.folder.file("0" + file)));
    EXPECT_EQ(shell.run("export " + file + " --force").status, kDone);
    EXPECT_PRED_FORMAT2(IsSubstring, "Dives taken: 0", shell.run("import " + file).out);
    Shell other;
    const auto way = "import " + shell.folder.file(file);
    const auto planned = other.run(way + " --dry-run --json");
    EXPECT_PRED_FORMAT2(IsSubstring, R"({"stored":false,"taken":4,"changed":0,)", planned.out);
    EXPECT_TRUE(other.dives().empty());
    EXPECT_EQ(other.run(way).status, kDone);
    EXPECT_EQ(other.dives(), shell.dives());
  }
}

#ifdef NAUTREL_WINDOW
TEST(Command, TakesTheDecimalSignOfTheProgram) {
  for (const auto& [locale, separator] : {std::pair{"en_ZA.UTF-8", ';'}, {"es_PE.UTF-8", ','}}) {
    const Shell shell;
    shell.run("export a.csv", locale);
    EXPECT_EQ(readFile(shell.folder.file("a.csv")).substr(7, 1), std::string(1, separator));
  }
}
#endif

TEST(Command, InsistsOnADuplicateByItsLine) {
  Shell shell;
  shell.addDives(2);
  shell.run("export dives.csv");
  const auto said = shell.run("import dives.csv --insist 3 --json");
  EXPECT_PRED_FORMAT2(IsSubstring, R"("taken":1,"changed":0,"duplicates":1)", said.out);
  EXPECT_PRED_FORMAT2(IsSubstring, R"({"line":3,"fate":"taken","number":"3","duplicateOf":"2",)",
                      said.out);
  EXPECT_EQ(shell.dives().size(), 3U);
  EXPECT_EQ(shell.run("import dives.csv --insist 9").status, kRefused);
  EXPECT_EQ(shell.dives().size(), 3U);
}

TEST(Command, RefusesAnOpenQuestionWithAnExampleAndTheOption) {
  struct Case {
    const char *file, *example, *option, *answer;
  };
  const Case cases[] = {
      {"Date,Duration [min],Max depth [m]\n03/04/2001,40,18\n", "'03/04/2001' in 'Date'",
       "--dates dmy or --dates mdy", "--dates mdy"},
      {"Date,Duration,Max depth [m]\n2001-03-04,0:45,18\n", "'0:45' in 'Duration'",
       "--durations m:s or --durations h:m", "--durations h:m"},
      {"Date,Duration [min],Max depth\n2001-03-04,40,18\n", "'18' in 'Max depth'",
       "--units metric or --units imperial", "--units metric"}};
  for (const auto& item : cases) {
    SCOPED_TRACE(item.option);
    Shell shell;
    shell.folder.write("a.csv", item.file);
    const auto said = shell.run("import a.csv");
    EXPECT_EQ(said.status, kRefused);
    EXPECT_PRED_FORMAT2(IsSubstring, item.example, said.err);
    EXPECT_PRED_FORMAT2(IsSubstring, item.option, said.err);
    EXPECT_PRED_FORMAT2(IsSubstring, "{\"refused\":\"", shell.run("import a.csv --json").out);
    EXPECT_TRUE(shell.dives().empty());
    EXPECT_EQ(shell.run(std::string("import a.csv ") + item.answer).status, kDone);
    EXPECT_EQ(shell.dives().size(), 1U);
  }
}

TEST(Command, WritesOverNoFileOfTheProgram) {
  Shell shell;
  shell.folder.write("Liste.rpt", "a template");
  for (const std::string own : {"Liste.rpt", "nautrel.rtf", "nautrel", "nautrel-exchange",
                                "Logbuch.mdb", "Logbuch.mdb-wal", "Logbuch.lock"}) {
    SCOPED_TRACE(own);
    const auto before = readFile(shell.folder.file(own));
    EXPECT_EQ(shell.run("export --force --format csv ./" + own).status, kRefused);
    EXPECT_TRUE(readFile(shell.folder.file(own)) == before);
  }
}

TEST(Command, OnlyWritingAsksForTheLock) {
  Shell shell;
  shell.addDives(1);
  shell.run("export a.uddf");
  shell.run("backup .");
  const LogbookLock other(shell.path);
  for (const char* line : {"import a.uddf", "restore Logbuch-2*.mdb"}) {
    const auto said = shell.run(line);
    EXPECT_EQ(said.status, kRefused);
    EXPECT_EQ(said.err, kInUse);
  }
  for (const char* line : {"import a.uddf --dry-run", "export b.csv", "check", "backup ."})
    EXPECT_EQ(shell.run(line).status, kDone) << line;
}

/// As on a disc, or where another diver's logbook lies: nothing can be laid beside it.
TEST(Command, LooksWhereNothingCanBeWritten) {
  Shell shell;
  shell.addDives(2);
  const auto out = TemporaryFolder();
  fs::permissions(out.path(), fs::perms::all);
  fs::permissions(shell.said.path(), fs::perms::all);
  const auto file = out.write("a.csv", "Date,Duration,Max depth [m]\n2001-03-04,40,18\n");
  fs::permissions(shell.folder.path(), fs::perms(0555));
  {
    const PlainUser diver;
    for (const auto& line : {std::string("check"), "export " + out.file("b.uddf"),
                             "import --dry-run " + file, "backup " + out.path()}) {
      const auto said = shell.run(line);
      EXPECT_EQ(said.status, kDone) << line << ": " << said.err;
    }
    EXPECT_EQ(shell.run("import " + file).status, kRefused);
  }
  fs::permissions(shell.folder.path(), fs::perms::all);
}

TEST(Command, ChecksBacksUpAndRestores) {
  Shell shell;
  shell.addDives(2);
  EXPECT_PRED_FORMAT2(IsSubstring, "Nothing is wrong", shell.run("check").out);
  fs::create_directory(shell.folder.file("backups"));
  EXPECT_EQ(shell.run("backup backups --keep 1").status, kDone);
  EXPECT_PRED_FORMAT2(IsSubstring, "Deleted the earlier", shell.run("backup backups --keep 1").out);
  shell.add(plainDive("9"));
  EXPECT_EQ(shell.run("check").status, kRefused);
  EXPECT_EQ(shell.run("check --json").out,
            "{\"findings\":[{\"about\":\"number\",\"row\":3,"
            "\"text\":\"Dive 9: it follows dive 2.\"}]}\n");
  shell.workspace.settle();
  EXPECT_PRED_FORMAT2(IsSubstring, "kept as", shell.run("restore backups/*").out);
  EXPECT_EQ(shell.dives().size(), 2U);
  EXPECT_EQ(shell.run("restore Logbuch-replaced-*").status, kDone);
  EXPECT_EQ(shell.dives().size(), 3U);
  fs::remove(shell.path);
  for (const char* line : {"check", "backup .", "export a.csv"})
    EXPECT_EQ(shell.run(line).status, kRefused) << line;
}

TEST(Command, WritesJsonOfAnyText) {
  EXPECT_EQ(Json("a\"\\\n\t\x7F\xC3\xBC \xFC").text(), "\"a\\\"\\\\\\n\\u0009\\u007fÃ¼ ü\"");
  EXPECT_EQ(Json::object({{"n", 1}, {"f", false}, {"a", Json::array({"x", 2})}}).text(),
            R"({"n":1,"f":false,"a":["x",2]})");
}

#if __has_include(<sys/ptrace.h>)

TEST(Command, ImportsAllOrNothingWhateverItMeets) {
  if (!AtCall::isPossible()) GTEST_SKIP() << "no process may watch another here";
  const MemoryFolders fast;
  for (const auto fate : {Meets::Death, Meets::FullDisk}) {
    if (fate == Meets::FullDisk && !kCallsCanFail) break;
    for (int call = 1;; ++call) {
      SCOPED_TRACE(call);
      Restoring it;
      it.folder.write("a.csv",
                      "Date,Duration [min],Max depth [m]\n2001-03-04,40,18\n2001-03-05,40,18\n");
      const AtCall run(call, fate, [&] {
        std::ostringstream told;
        return runCommand({"import", it.folder.file("a.csv")}, {it.folder.path(), {}, kNow}, told,
                          told);
      });
      const auto numbers = numbersIn(it.path);
      EXPECT_TRUE(numbers == "1 2 3 " || numbers == "1 2 3 4 5 ") << numbers;
      EXPECT_TRUE(fate == Meets::Death || (run.result() == 0) == (numbers == "1 2 3 4 5 "));
      if (testing::Test::HasFailure() || !run.reached()) break;
    }
  }
}

#endif

}  // namespace
}  // namespace nautrel::exchange

#endif
