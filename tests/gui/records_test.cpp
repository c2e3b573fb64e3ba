// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractButton>
#include <QClipboard>
#include <QHeaderView>
#include <QMdiSubWindow>

#include "dives/Form13.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "gui/gui_test.h"
#include "look/bindings/table_binding.h"

namespace nautrel {
namespace {

TEST_F(GuiTest, TheNavigatorLeavesTheFocusToTheBoxAndTheWindowSelectsItsText) {
  addDives(1, 3);
  auto& form = open(&MDIForm1::Menü2b, &Nautrel::Form4);
  expectFocus(form.Text2);
  EXPECT_EQ(widget<QLineEdit>(form.Text2).selectedText(), "Land 1");
  keys("X");
  for (auto* arrow : widget(form.Data1).findChildren<QAbstractButton*>())
    if (arrow->accessibleName() == "Next dive") mouse(*arrow);
  expectFocus(form.Text2);
  EXPECT_EQ(widget<QLineEdit>(form.Text2).text(), "Land 2");
  keys("Y");
  key(Qt::Key_Return);
  EXPECT_EQ(column("Land"), (std::vector<std::string>{"Land 1", "Y", "Land 3"}));
  EXPECT_EQ(fromQt(window(form)->windowTitle()), "Edit dives - Number 3");
}

TEST_F(GuiTest, AnAccessKeyOfTheWindowComesBeforeThatOfTheMenuBar) {
  addDives(1, 3);
  auto& form = open(&MDIForm1::Menü2c, &Nautrel::Form5);
  choose(form.SSTab1, 1);
  settle();
  mouse(form.Text6);
  keys("2");
  mouse(form.Text7);
  keys("1");
  key(Qt::Key_E, Qt::AltModifier);
  EXPECT_EQ(desktop->texts(),
            std::vector<std::string>{"First dive-# must be lower than last dive-#"});
  expectFocus(form.Command4);
}

TEST_F(GuiTest, TheTableReadsOnlyTheRowsInSight) {
  addDives(1, 400);
  auto dive = someDive(401);
  dive["Lang"] = "one\r\nline";
  dive["Boot"] = true;
  add(dive);
  auto& form = open(&MDIForm1::Menü3d, &Nautrel::Form13);
  auto& view = widget<TableView>(form.MSFlexGrid1);
  ASSERT_EQ(view.model()->rowCount(), 401);
  EXPECT_EQ(view.model()->columnCount(), 30);
  int read = 0;
  for (int row = 0; row < 401; ++row) read += form.MSFlexGrid1.isRead(row) ? 1 : 0;
  EXPECT_LT(read, 100);
  view.scrollToBottom();
  settle();
  EXPECT_TRUE(form.MSFlexGrid1.isRead(400));
  const auto shown = [&](int row, int column) {
    return fromQt(view.model()->index(row, column).data().toString());
  };
  EXPECT_EQ(shown(400, 10), "one line");
  EXPECT_EQ(shown(400, 14), "True");
  EXPECT_EQ(fromQt(view.model()->headerData(29, Qt::Horizontal).toString()), "Grafik");

  view.setCurrentIndex(view.model()->index(400, 10));
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  view.setCurrentIndex({});
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(fromQt(QApplication::clipboard()->text()), "one line");
}

TEST_F(GuiTest, TheTableIsTheOneThatCanBeSizedAndItsGridFollows) {
  addDives(1, 3);
  auto& form = open(&MDIForm1::Menü3d, &Nautrel::Form13);
  auto* frame = qobject_cast<QMdiSubWindow*>(window(form));
  ASSERT_NE(frame, nullptr);
  frame->resize(500, 300);
  settle();
  EXPECT_EQ(form.MSFlexGrid1.Width(), 500 * 15 - 140);
  EXPECT_EQ(form.MSFlexGrid1.Height(), 300 * 15 - 400);
  const auto small = widget(form.MSFlexGrid1).size();
  frame->showMaximized();
  settle();
  EXPECT_GT(widget(form.MSFlexGrid1).width(), small.width());
  frame->showMinimized();
  settle();
  frame->showNormal();
  settle();
  EXPECT_EQ(widget(form.MSFlexGrid1).size(), small);

  click(app->MDIForm1().Menü2c);
  settle();
  auto* fixed = window(app->Form5());
  const auto size = fixed->size();
  fixed->resize(size * 2);
  EXPECT_EQ(fixed->size(), size);
}

}  // namespace
}  // namespace nautrel
