// SPDX-License-Identifier: GPL-2.0-or-later
#include <filesystem>
#include <functional>

#include "diver/Form15.h"
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "dives/Form8.h"
#include "store/delivered.h"
#include "support/logbook.h"
#include "support/repaints.h"
#include "support/windows.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

/// Windows over a logbook of dives 1 to 3, whose file is exchanged for one of dive 7 or taken away.
class ExchangedFile : public LogbookTest, public ::testing::WithParamInterface<bool> {
 protected:
  static bool removed() { return GetParam(); }
  static int failure() { return removed() ? DatabaseNotFound : CannotOpenFile; }

  void SetUp() override {
    NOT_ON_WINDOWS(kFileIsHeld);
    addItem("Lamp");
    add(someDive(7));
    fs::rename(path, other);
    ASSERT_TRUE(createDeliveredLogbook(path));
    addDives(1, 3);
    addItem("Fins");
    fs::create_hard_link(path, folder.file("before.mdb"));
    contents = {readFile(path), readFile(other)};
  }
  void addItem(const char* name) { add({{"Gegenstand", name}}, "Ausrüstung"); }
  void exchange() { removed() ? static_cast<void>(fs::remove(path)) : fs::rename(other, path); }
  void expectUntouched() {
    app.reset();
    EXPECT_TRUE(readFile(folder.file("before.mdb")) == contents.first);
    EXPECT_EQ(fs::exists(path), !removed());
    EXPECT_TRUE(removed() || readFile(path) == contents.second);
  }
  void expectEnded() {
    ASSERT_TRUE(desktop->failure());
    EXPECT_EQ(desktop->failure()->number, failure());
    expectUntouched();
  }

  const std::string path = folder.file("Logbuch.mdb");
  const std::string other = folder.file("other.mdb");
  std::pair<std::string, std::string> contents;
};
INSTANTIATE_TEST_SUITE_P(File, ExchangedFile, testing::Bool(),
                         [](const auto& kind) { return kind.param ? "Removed" : "Exchanged"; });

TEST_P(ExchangedFile, EditDivesEndsTheProgram) {
  startAt(&MDIForm1::Menü2b);
  auto& form = app->Form4();
  type(form.Text2, "Egypt");
  exchange();
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(form.Text1.text(), "2");
  click(form.Command1);
  expectEnded();
}

TEST_P(ExchangedFile, DeleteDiveEndsTheProgramEvenUnderItsQuestion) {
  startAt(&MDIForm1::Menü2c);
  auto& form = app->Form5();
  desktop->answer(kYes);
  desktop->whileBoxIsOpen = [&] { exchange(); };
  click(form.Command1);
  EXPECT_EQ(desktop->texts(), Texts{"Delete this dive?"});
  expectEnded();
}

TEST_P(ExchangedFile, DiveEquipmentStaysSilentAndWritesNothing) {
  startAt(&MDIForm1::Menü1c);
  auto& form = app->Form15();
  type(form.Text2, "Atlas");
  exchange();
  click(form.Command4);
  desktop->answer(kYes);
  click(form.Command2);
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(form.Text1.text(), removed() ? "Fins" : "Lamp");
  expectUntouched();
}

TEST_P(ExchangedFile, ANewItemGoesIntoTheFileThatIsThere) {
  startAt(&MDIForm1::Menü1c);
  auto& form = app->Form15();
  exchange();
  click(form.Command1);
  if (removed()) return expectEnded();
  type(form.Text1, "Mask");
  click(form.Command3);
  EXPECT_EQ(rows("Ausrüstung", {"Gegenstand"}), (std::vector<Texts>{{"Lamp"}, {"Mask"}}));
  EXPECT_EQ(form.Text1.text(), "Mask");
  EXPECT_TRUE(readFile(folder.file("before.mdb")) == contents.first);
}

TEST_P(ExchangedFile, ViewLogbookLeafsOnAndTheNextWindowTakesTheNewFile) {
  startAt(&MDIForm1::Menü3a);
  exchange();
  auto& form = app->Form3();
  for (const char* number : {"2", "3"}) {
    press(form.Data1, Navigator::Arrow::Next);
    EXPECT_EQ(form.Text1.text(), number);
  }
  close(form);
  if (removed()) return expectUntouched();
  click(app->MDIForm1().Menü2b);
  EXPECT_EQ(app->Form4().Text1.text(), "7");
  expectUntouched();
}

TEST_P(ExchangedFile, SortLogbookEndsInTheMiddle) {
  int steps = 0;
  Repaints looks([&](Control&) {
    if (++steps == 2) exchange();
  });
  app->setLooks(&looks);
  startAt(&MDIForm1::Menü1d);
  auto& form = app->Form8();
  clear(form.Text1);
  type(form.Text1, "5");
  desktop->answer(kYes);
  click(form.Command1);
  EXPECT_EQ(steps, 2);
  expectEnded();
}

}  // namespace
}  // namespace nautrel
