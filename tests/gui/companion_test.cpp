// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractItemView>
#include <QAccessible>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QUrl>

#include "gui/companion_test.h"
#include "look/system/long_work.h"

namespace nautrel::exchange {
namespace {

constexpr auto kForeign =
    "Date,Duration (min),Max Depth (ft),Site\n"
    "03/04/2020,30,50,Teti\n"
    "03/05/2020,31,51,Reef\n";

class CompanionLook : public CompanionTest {
 protected:
  void choose(const std::string& content) {
    desktop->answerFile(book.folder.write("log.csv", content));
    key(Qt::Key_F, Qt::AltModifier);
  }
};

TEST_F(CompanionLook, EveryControlHasItsWidgetAndEveryInputAName) {
  const auto& view = *looks->viewOf(form);
  for (auto* control : form.controls())
    EXPECT_TRUE(dynamic_cast<Frame*>(control) != nullptr || view.bindingOf(*control) != nullptr)
        << control->name();
  for (auto* input : window(form)->findChildren<QWidget*>()) {
    const auto name = fromQt(input->objectName());
    if (!isOneOf<QAbstractButton, QLineEdit, QPlainTextEdit, QAbstractItemView>(*input) ||
        name.starts_with("qt_") || name.starts_with("Scroll") || name.empty())
      continue;
    EXPECT_NE(form.control(name), nullptr) << name;
    const auto* spoken = QAccessible::queryAccessibleInterface(input);
    EXPECT_NE(fromQt(spoken->text(QAccessible::Name)), "") << name;
  }
}

TEST_F(CompanionLook, DivesOfAFileAreTakenOverByKeysAlone) {
  expectFocus(form.Pages);
  EXPECT_EQ(widget<QPushButton>(form.In.TakeOver).toolTip(), "Choose a file first.");
  choose(kForeign);
  EXPECT_TRUE(widget(form.In.AskDates).isVisible());
  EXPECT_FALSE(widget(form.In.Dives).isVisible());
  expectFocus(form.In.DayFirst);
  key(Qt::Key_D, Qt::AltModifier);
  for (int tabs = 0; tabs < 9 && form.activeControl() != &form.In.Dives; ++tabs) key(Qt::Key_Tab);
  expectFocus(form.In.Dives);
  key(Qt::Key_End);
  EXPECT_EQ(form.In.Dives.current(), 1);
  key(Qt::Key_Space);
  auto& table = widget<QAbstractItemView>(form.In.Dives);
  EXPECT_EQ(table.model()->data(table.model()->index(1, 0), Qt::CheckStateRole), Qt::Unchecked);
  EXPECT_EQ(table.currentIndex().row(), 1);
  key(Qt::Key_Return);
  ASSERT_EQ(book.dives().size(), 1U);
  EXPECT_EQ(book.dives()[0].text(Feld::Platz), "Teti");
  expectFocus(form.In.Report);
  key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(widget(form.Out.WriteFile).isVisible());
  key(Qt::Key_Escape);
  EXPECT_TRUE(desktop->ended());
}

TEST_F(CompanionLook, TheMouseTicksAndAFileMayBeDropped) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(toQt(book.folder.write("log.csv", kForeign)))});
  auto* window = this->window(form);
  QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window, &drop);
  settle();
  mouse(form.In.MonthFirst);
  ASSERT_EQ(form.In.Dives.rowCount(), 2);
  auto& table = widget<QAbstractItemView>(form.In.Dives);
  const auto tick = table.visualRect(table.model()->index(1, 0));
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, {tick.left() + 12, tick.center().y()});
  settle();
  EXPECT_FALSE(form.In.Dives.row(1).ticked);
  EXPECT_EQ(form.In.Dives.current(), 1);
}

TEST(LongWork, TellsHowFarItIsAndStopsWhereItIsAsked) {
  bool seen = false;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    auto* cancel = box == nullptr ? nullptr : box->findChild<QPushButton*>();
    if (cancel == nullptr || !cancel->isVisible()) return;
    seen = true;
    cancel->click();
  });
  user.start(20);
  std::size_t parts = 0;
  doLongWork(nullptr, "Counting", [&](const Progress& goOn) {
    while (goOn(parts, 1'000'000'000)) ++parts;
  });
  EXPECT_TRUE(seen);
  EXPECT_GT(parts, 0U);
}

}  // namespace
}  // namespace nautrel::exchange
