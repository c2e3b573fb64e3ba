// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/export.h"

#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#endif

#include <csignal>

#include "exchange/csv_writer.h"
#include "exchange_test.h"
#include "support/windows.h"

namespace nautrel::exchange {
namespace {

const ExportOptions kCsv{.format = Format::Csv};

TEST(CsvExport, TellsNullFromEmptyAndKeepsFormulasHarmless) {
  Book book;
  auto dive = plainDive("7", "60,5");
  dive.texts[Feld::Land] = "";
  dive.texts[Feld::Buddy] = "=1+1";
  dive.texts[Feld::Lang] = "a \"b\"\r\nc;d";
  dive.texts[Feld::Höhe] = "-5";
  dive.flags[Feld::Salz] = true;
  book.add(dive);
  const auto file = book.exported("dives.csv", kCsv, {.decimal = ","});
  const auto second = file.find("\r\n") + 2;
  EXPECT_EQ(file.substr(0, 20),
            "\xEF\xBB\xBF"
            "Date;Nr;Country;C");
  EXPECT_EQ(file.substr(second),
            "2001-03-05;\"7\";\"\";;;\"05\";\"03\";\"2001\";\"45\";\"60,5\";\"'=1+1\";"
            "\"a \"\"b\"\"\r\nc;d\";1;0;0;0;0;0;0;;;;;;\"-5\";;0;0;0;0;\r\n");
}

TEST(CsvExport, GuardingIsReversible) {
  for (const char* text : {"=A1", "'=A1", "''-x", "-5", "+5,0", "-", "@a", "\tb", "'", "''", "x"})
    EXPECT_EQ(unguarded(guarded(text)), text);
  EXPECT_EQ(guarded("-5.2"), "-5.2");
  EXPECT_EQ(guarded("-5.2.1"), "'-5.2.1");
}

TEST(Export, TakesTheDivesOfARange) {
  Book book;
  for (const char* number : {"8", "9", "10", "ab"}) book.add(plainDive(number));
  const auto dives = [&](const ExportOptions& options) {
    return exportLogbook(book.workspace, book.path, book.folder.file("a.csv"), options, {}).dives;
  };
  EXPECT_EQ(dives({.format = Format::Csv}), 4);
  EXPECT_EQ(dives({.format = Format::Csv, .from = 9, .overwrite = true}), 2);
  EXPECT_EQ(dives({.format = Format::Csv, .from = 9, .to = 9, .overwrite = true}), 1);
}

TEST(Export, WritesOverNothingThatIsNotToBeReplaced) {
  Book book;
  const auto before = readFile(book.path);
  const auto own = book.folder.write("Liste.rpt", "a template");
  const auto there = book.folder.write("old.csv", "old");
  const auto link = book.folder.file("link.csv");
  if (kOnWindows)
    std::filesystem::create_hard_link(book.path, link);
  else
    std::filesystem::create_symlink(book.path, link);
  const auto refusedAt = [&](const std::string& target) {
    ExportOptions options{.format = Format::Csv, .overwrite = target != there};
    return refusal([&] { exportLogbook(book.workspace, book.path, target, options, {}); });
  };
  for (const auto& target : {book.path, book.path + "-wal", book.folder.file("Logbuch.lock"), own,
                             link, book.folder.file("./Logbuch.mdb")})
    EXPECT_NE(refusedAt(target).find("belongs to Nautrel itself"), std::string::npos) << target;
  EXPECT_NE(refusedAt(there).find("is there already"), std::string::npos);
  EXPECT_NE(refusedAt(book.folder.path()).find("no file that can be replaced"), std::string::npos);
  EXPECT_NE(refusedAt(book.folder.file("no/such/a.csv")).find("cannot be written"),
            std::string::npos);
  EXPECT_EQ(readFile(there), "old");
  EXPECT_EQ(readFile(own), "a template");
}

TEST(Export, LeavesNothingBehindWhereItFails) {
  Book book;
  book.add(plainDive("1"));
  const auto target = book.folder.write("old.csv", "old");
  const ExportOptions options{.format = Format::Csv, .overwrite = true};
  const auto cancel = [](std::size_t, std::size_t) { return false; };
  EXPECT_NE(refusal([&] {
              exportLogbook(book.workspace, book.path, target, options, {}, cancel);
            }).find("cancelled"),
            std::string::npos);
  EXPECT_EQ(readFile(target), "old");
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(book.folder.path()))
    names.push_back(entry.path().filename().string());
  for (const auto& name : names) EXPECT_EQ(name.find(".new"), std::string::npos) << name;
}

/// Where a file cannot grow any further, as on a full disk.
#if __has_include(<sys/resource.h>)
TEST(Export, TellsAFullDiskAndLeavesNothing) {
  Book book;
  auto dive = plainDive("1");
  dive.texts[Feld::Lang] = std::string(1 << 20, 'x');
  book.add(dive);
  book.workspace.settle();
  const auto target = book.folder.file("a.uddf");
  const auto before = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{.rlim_cur = 100'000, .rlim_max = limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const auto sentence = refusal([&] { exportLogbook(book.workspace, book.path, target, {}, {}); });
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, before);
  EXPECT_NE(sentence.find("could not be written to its end"), std::string::npos) << sentence;
  for (const auto& entry : std::filesystem::directory_iterator(book.folder.path()))
    EXPECT_EQ(entry.path().filename().string().find("a.uddf"), std::string::npos);
}
#endif

}  // namespace
}  // namespace nautrel::exchange
