#include <QListView>
#include <QMdiSubWindow>
#include <QPushButton>

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
  EXPECT_EQ(found->geometry().right() + 1, dive->geometry().left());
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

TEST_F(SearchLook, MinimizedSearchIsRestoredByItsOwnBar) {
  addDives(1, 3);
  auto& search = found("land");
  const auto sizeBefore = size(search);
  press(search.List1, 0, true);
  qobject_cast<QMdiSubWindow*>(window(search))->showNormal();
  settle();
  EXPECT_EQ(search.windowState(), WindowState::Normal);
  EXPECT_EQ(size(search), sizeBefore);
}

}  // namespace
}  // namespace nautrel
