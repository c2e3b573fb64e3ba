// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractButton>
#include <QComboBox>
#include <QListView>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QWheelEvent>

#include "dives/Form3.h"
#include "gui/gui_test.h"
#include "search/Form12.h"
#include "search/Form19.h"
#include "search/Form20.h"

namespace nautrel {
namespace {

class SearchLook : public GuiTest {
 protected:
  /// Types the term into the real box and starts by Enter.
  Form12& found(const QString& term) {
    open(&MDIForm1::Menü3b, &Nautrel::Form12);
    keys(term);
    key(Qt::Key_Return);
    return app->Form12();
  }
  QListView& view(ListBox& list) { return widget<QListView>(list); }
  /// The rows that are highlighted.
  std::vector<int> highlight(ListBox& list) {
    std::vector<int> rows;
    for (const auto& index : view(list).selectionModel()->selectedRows())
      rows.push_back(index.row());
    return rows;
  }
  QPoint middle(ListBox& list, int line) {
    auto& shown = view(list);
    if (line < 0) return shown.viewport()->rect().bottomLeft() + QPoint(3, -3);
    return shown.visualRect(shown.model()->index(line, 0)).center();
  }
  QSize size(const Form& form) { return window(form)->size(); }
  /// A mouse on a line of a list.
  void press(ListBox& list, int line, bool twice = false) {
    auto& view = widget<QListView>(list);
    const auto place = view.visualRect(view.model()->index(line, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
    settle();
  }
};

TEST_F(SearchLook, RoadOfAHitIsTakenByMouseAndKeys) {
  addDives(1, 9);
  auto& search = found("land");
  EXPECT_EQ(search.List1.ListCount(), 9);
  const auto before = window(search)->geometry();
  press(search.List1, 3, true);

  EXPECT_TRUE(window(search)->isMinimized());
  EXPECT_LT(size(search).height(), before.height() / 2);
  auto& list = app->Form19();
  auto* found = window(list);
  auto* dive = window(app->Form3());
  EXPECT_EQ(found->height(), dive->height());
  EXPECT_EQ(found->width(), toPixels(Form19::kListWidth + 100));
  EXPECT_EQ(found->x(), std::max(0, dive->x() - found->width()));
  EXPECT_EQ(widget<QListView>(list.List1).currentIndex().row(), 3);

  EXPECT_EQ(app->activeForm(), &list);
  key(Qt::Key_Up);
  EXPECT_EQ(widget<QLineEdit>(app->Form3().Text1).text(), "3");
  press(list.List1, 6);
  EXPECT_EQ(widget<QLineEdit>(app->Form3().Text1).text(), "7");
  key(Qt::Key_Down);
  EXPECT_EQ(widget<QLineEdit>(app->Form3().Text1).text(), "8");

  mouse(app->Form3().Command3);
  EXPECT_FALSE(app->loaded(3));
  EXPECT_FALSE(app->loaded(19));
  EXPECT_FALSE(window(search)->isMinimized());
  EXPECT_EQ(window(search)->geometry(), before);
  EXPECT_EQ(widget<QListView>(search.List1).currentIndex().row(), 3);
  key(Qt::Key_Down);
  EXPECT_EQ(search.Frame2.caption(), "Dive 5");
}

TEST_F(SearchLook, TheHighlightIsTheLineThatIsChosenWhateverIsDoneToTheList) {
  addDives(1, 12);
  auto& search = found("land 1");
  auto& list = search.List1;
  auto* lines = view(list).viewport();
  const auto mouse = [&](auto&& act, Qt::MouseButton button, int line) {
    return
        [=, this, &list] { act(lines, button, Qt::KeyboardModifiers(), middle(list, line), -1); };
  };
  const auto clickAt = [](auto&&... how) { QTest::mouseClick(how...); };
  const auto pressAt = [](auto&&... how) { QTest::mousePress(how...); };
  const auto doubleAt = [](auto&&... how) { QTest::mouseDClick(how...); };
  const auto slipTo = [&](int line) {
    QTest::mouseMove(lines, middle(list, line));
    QTest::mouseRelease(lines, Qt::LeftButton, {}, middle(list, line));
  };
  const std::tuple<const char*, std::function<void()>, int> steps[] = {
      {"a fresh list", [] {}, -1},
      {"the first arrow key", [&] { key(Qt::Key_Down); }, 0},
      {"a press", mouse(clickAt, Qt::LeftButton, 2), 2},
      {"a right click", mouse(clickAt, Qt::RightButton, 1), 2},
      {"a right double click", mouse(doubleAt, Qt::RightButton, 1), 2},
      {"a press that slips",
       [&] {
         mouse(pressAt, Qt::LeftButton, 1)();
         slipTo(3);
       },
       1},
      {"the blank part", mouse(clickAt, Qt::LeftButton, -1), 1},
      {"twice on the blank part", mouse(doubleAt, Qt::LeftButton, -1), 1},
      {"Space", [&] { key(Qt::Key_Space); }, 1},
      {"Ctrl+Space", [&] { key(Qt::Key_Space, Qt::ControlModifier); }, 1},
      {"digits", [&] { keys("12"); }, 3},
      {"Home", [&] { key(Qt::Key_Home); }, 0},
      {"a page down", [&] { key(Qt::Key_PageDown); }, 3},
      {"below the end", [&] { key(Qt::Key_Down); }, 3},
      {"New search", [&] { key(Qt::Key_Return); }, -1},
      {"a second search",
       [&] {
         keys("land 1");
         key(Qt::Key_Return);
       },
       -1},
      {"its first key", [&] { key(Qt::Key_End); }, 3}};
  for (const auto& [name, act, line] : steps) {
    act();
    settle();
    EXPECT_EQ(list.ListIndex(), line) << name;
    EXPECT_EQ(highlight(list), line < 0 ? std::vector<int>{} : std::vector{line}) << name;
    EXPECT_EQ(search.Frame2.caption(), line < 0 ? "Dive" : "Dive " + list.text()) << name;
    EXPECT_EQ(search.windowState(), WindowState::Normal) << name;
  }
}

TEST_F(SearchLook, ANewSearchForgetsTheTermOfTheDropDownAndTheWheelPassesItBy) {
  addDives(1, 3);
  auto& search = found("land");
  auto& box = widget<QComboBox>(search.Combo1);
  const auto wheel = [&] {
    QWheelEvent turn(box.rect().center(), box.mapToGlobal(box.rect().center()), {}, {0, -120}, {},
                     {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &turn);
    settle();
  };
  key(Qt::Key_Return);
  key(Qt::Key_Down);
  EXPECT_EQ(search.Combo1.text(), "land");
  mouse(search.Check1);
  wheel();
  EXPECT_EQ(search.Combo1.ListIndex(), 0);
  key(Qt::Key_Return);
  key(Qt::Key_Return);
  EXPECT_EQ(search.Combo1.ListIndex(), -1);
  EXPECT_EQ(box.currentIndex(), -1);
  mouse(search.Text1);
  wheel();
  EXPECT_EQ(box.currentText(), "");
  expectFocus(search.Text1);
}

TEST_F(SearchLook, ASpinArrowKeepsTheFocusThatAPressGaveIt) {
  addDives(1, 9);
  auto& search = open(&MDIForm1::Menü3b, &Nautrel::Form12);
  for (auto* arrow : widget(search.SpinButton2).findChildren<QAbstractButton*>()) {
    QTest::qWait(50);
    mouse(*arrow);
    expectFocus(search.SpinButton2);
  }
  key(Qt::Key_Down);
  EXPECT_EQ(search.Text2.text(), "7");
}

// Between the steps the screen is brought up to date, as it is while a long pass runs.
TEST_F(SearchLook, ControlDisabledInADisabledWindowStaysSo) {
  addDives(1, 3);
  start();
  click(app->MDIForm1().Menü3e);
  auto& search = app->Form20();
  const auto step = [&](auto&& action) {
    app->handle(action);
    settle();
  };
  step([&] { search.setEnabled(false); });
  step([&] { search.Command1.setEnabled(false); });
  EXPECT_FALSE(widget(search.Command4).isEnabled());
  step([&] { search.setEnabled(true); });
  step([&] { search.Command2.setEnabled(true); });
  step([&] { search.Command2.setDefault(true); });
  EXPECT_TRUE(widget(search.Command4).isEnabled());
  EXPECT_FALSE(widget(search.Command1).isEnabled());
  EXPECT_FALSE(widget<QPushButton>(search.Command1).isDefault());
  EXPECT_TRUE(widget<QPushButton>(search.Command2).isDefault());
}

}  // namespace
}  // namespace nautrel
