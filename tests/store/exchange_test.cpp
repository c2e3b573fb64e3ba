// SPDX-License-Identifier: GPL-2.0-or-later
#include <functional>

#include "store/store_test.h"
#include "support/windows.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

/// A logbook of dives 1 to 3; behind the program's back another file, of dive 77, takes its place,
/// or none does. Both stay byte for byte what they were.
class ExchangeTest : public StoreTest, public testing::WithParamInterface<bool> {
 protected:
  void SetUp() override {
    NOT_ON_WINDOWS(kFileIsHeld);
    addDives(1, 3);
    fs::copy_file(path, other);
    OtherProgram(other).run("UPDATE Logbuch SET Nr = 77");
    fs::create_hard_link(path, before);
  }
  void exchange() {
    if (removed()) {
      fs::remove(path);
    } else {
      content_ = readFile(other);
      fs::rename(other, path);
    }
  }
  static bool removed() { return GetParam(); }
  static int failure() { return removed() ? DatabaseNotFound : CannotOpenFile; }
  void expectUntouched(const std::string& old) {
    EXPECT_TRUE(readFile(before) == old);
    EXPECT_EQ(fs::exists(path), !removed());
    if (removed()) return;
    EXPECT_TRUE(readFile(path) == content_);
    EXPECT_EQ(numbers(), "77,77,77");
    EXPECT_TRUE(readFile(path) == content_);
  }

  std::string other = home.file("other.mdb");
  std::string before = home.file("before.mdb");
  std::string content_;
};
INSTANTIATE_TEST_SUITE_P(File, ExchangeTest, testing::Bool(),
                         [](const auto& kind) { return kind.param ? "Removed" : "Exchanged"; });

TEST_P(ExchangeTest, NothingIsWrittenThroughAnEarlierOpening) {
  const auto old = readFile(path);
  {
    auto rows = table();
    auto window = dynaset();
    exchange();
    for (auto* set : {&rows, &window}) {
      const std::function<void()> changes[] = {[&] { set->AddNew(); }, [&] { set->Edit(); },
                                               [&] { set->Delete(); }};
      for (const auto& change : changes) EXPECT_EQ(failureOf(change), failure());
      EXPECT_EQ(number(*set), "1");
    }
    EXPECT_EQ(failureOf([&] { dynaset(); }), removed() ? DatabaseNotFound : 0);
    window.MoveLast();
    EXPECT_EQ(number(window), "3");
    workspace.settle();
  }
  expectUntouched(old);
}

TEST_P(ExchangeTest, WhatTheActionWroteBeforeGoesIntoNeitherFile) {
  const auto old = readFile(path);
  {
    auto window = dynaset();
    auto rows = table();
    rows.AddNew();
    rows.Update();
    rows.Close();
    window.Delete();
    exchange();
    EXPECT_EQ(failureOf([&] { dynaset(); }), failure());
    EXPECT_EQ(failureOf([&] { window.MoveNext(), window.Delete(); }), failure());
    for (int times = 0; times < 2; ++times)
      EXPECT_EQ(failureOf([&] { workspace.settle(); }), failure());
  }
  expectUntouched(old);
}

TEST_P(ExchangeTest, ALinkThatPointsElsewhereCountsAsExchanged) {
  const auto link = home.file("link.mdb");
  fs::create_symlink(path, link);
  auto dives = workspace.OpenDatabase(link).OpenDynaset(Tabelle::Logbuch);
  fs::remove(link);
  if (!removed()) fs::create_symlink(other, link);
  EXPECT_EQ(failureOf([&] { dives.Delete(); }), failure());
  fs::remove(link);
  fs::create_symlink(path, link);
  dives.Delete();
  workspace.settle();
  EXPECT_EQ(numbers(), "2,3");
}

}  // namespace
}  // namespace nautrel
