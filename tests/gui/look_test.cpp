#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include "dives/Form2.h"
#include "dives/Form3.h"
#include "gui/gui_test.h"
#include "platform/qt/navigator_bar.h"

namespace nautrel {
namespace {

constexpr int kChildWindows[] = {2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                                 12, 13, 14, 15, 16, 18, 19, 20, 21, 22};

class Look : public GuiTest {
 protected:
  Form2& insert() {
    start();
    click(app->MDIForm1().Menü2a);
    settle();
    return app->Form2();
  }
  Form3& view() {
    start();
    click(app->MDIForm1().Menü3a);
    settle();
    return app->Form3();
  }
};

bool takesInput(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

/// A part of a composed widget, such as an arrow of a spin button, is no control of its own.
bool standsAlone(const QWidget& widget) {
  const auto name = widget.objectName();
  return !name.isEmpty() && !name.startsWith("qt_") && !name.startsWith("Scroll");
}

std::string accessibleName(QWidget& widget) {
  if (auto* interface = QAccessible::queryAccessibleInterface(&widget))
    return fromQt(interface->text(QAccessible::Name));
  return {};
}

TEST_F(Look, EveryVisibleControlHasItsWidgetAndEveryInputItsControlAndName) {
  addDives(1, 3);
  start();
  int windows = 0;
  for (const int number : kChildWindows) {
    app->handle([&] { app->show(number); });
    settle();
    auto* form = app->ifLoaded(number);
    if (form == nullptr) continue;
    ++windows;
    auto* root = window(*form);
    const auto* view = looks->viewOf(*form);
    for (auto* control : form->controls()) {
      if (!control->visible() || dynamic_cast<Timer*>(control) != nullptr) continue;
      const bool plain = dynamic_cast<Frame*>(control) != nullptr;
      EXPECT_TRUE(plain || view->bindingOf(*control) != nullptr)
          << form->name() << ": no widget is bound to " << control->name();
    }
    for (auto* widget : root->findChildren<QWidget*>()) {
      if (!takesInput(*widget) || !standsAlone(*widget)) continue;
      EXPECT_NE(form->control(fromQt(widget->objectName())), nullptr)
          << form->name() << ": nothing stands behind " << fromQt(widget->objectName());
      const auto name = accessibleName(*widget);
      EXPECT_FALSE(name.empty()) << form->name() << ": " << fromQt(widget->objectName());
      EXPECT_NE(name, fromQt(widget->objectName())) << form->name();
    }
    app->handle([&] { app->unload(number); });
    settle();
  }
  EXPECT_GT(windows, 1);
}

TEST_F(Look, EveryWindowFitsTheMainWindowOfAnOldScreen) {
  addDives(1, 3);
  desktop->settings = {{{"Start", "Fenster"}, "Ben"},
                       {{"Start", "Breite"}, "15360"},
                       {{"Start", "Höhe"}, "11520"},
                       {{"Start", "Links"}, "0"},
                       {{"Start", "Oben"}, "0"}};
  start();
  const auto& ground = looks->mainFrame()->area();
  for (const int number : kChildWindows) {
    app->handle([&] { app->show(number); });
    settle();
    auto* form = app->ifLoaded(number);
    if (form == nullptr) continue;
    EXPECT_TRUE(ground.rect().contains(window(*form)->geometry())) << form->name();
    const auto size = window(*form)->size();
    EXPECT_EQ(size.expandedTo(window(*form)->minimumSizeHint()), size)
        << form->name() << " cuts what it holds";
    app->handle([&] { app->unload(number); });
  }
}

TEST_F(Look, ADiveIsTypedByKeysAlone) {
  auto& form = insert();
  expectFocus(form.Text2);
  keys("Egypt\tDahab\tCanyon\t5\t3\t1999Anna\t45\t9.50");
  key(Qt::Key_Return);
  EXPECT_EQ(form.Text1.text(), "2");
  EXPECT_EQ(
      rows("Logbuch", {"Nr", "Land", "Tag", "Jahr", "Buddy", "Zeit", "Tiefe"}),
      (std::vector<std::vector<std::string>>{{"1", "Egypt", "05", "1999", "Anna", "45", "9.50"}}));
  expectFocus(form.Text10);
  key(Qt::Key_Escape);
  EXPECT_FALSE(app->loaded(2));
}

TEST_F(Look, AClickElsewhereComesBackToADayThatIsNotValid) {
  auto& form = insert();
  mouse(form.Text5);
  keys("0");
  mouse(form.Text8);
  EXPECT_EQ(desktop->texts(), std::vector<std::string>{"Day is not valid"});
  expectFocus(form.Text5);
  mouse(form.Command4);
  EXPECT_EQ(desktop->texts(), std::vector<std::string>{"Day is not valid"});
  EXPECT_FALSE(widget<QPushButton>(form.Command4).isDown());
  expectFocus(form.Text5);
  widget<QLineEdit>(form.Text5).selectAll();
  keys("12");
  expectFocus(form.Text6);
}

TEST_F(Look, TypingIsRewrittenUnderTheCaret) {
  auto& form = insert();
  mouse(form.Text9);
  keys("12a45");
  EXPECT_EQ(fromQt(widget<QLineEdit>(form.Text9).text()), "45");
  key(Qt::Key_Home);
  keys("1");
  EXPECT_EQ(form.Text9.text(), "145");
  EXPECT_EQ(widget<QLineEdit>(form.Text9).cursorPosition(), 1);
  keys("9");
  EXPECT_EQ(fromQt(widget<QLineEdit>(form.Text9).text()), "145");
}

TEST_F(Look, PagesOptionsAndCommentsAnswerMouseAndKeys) {
  auto& form = insert();
  auto& tabs = widget<QTabWidget>(form.SSTab1);
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(2).center());
  settle();
  EXPECT_EQ(form.SSTab1.Tab(), 2);
  auto& salt = widget<QRadioButton>(form.Option1);
  mouse(salt);
  EXPECT_TRUE(form.Option1.on());
  mouse(salt);
  EXPECT_TRUE(salt.isChecked()) << "a second press does not switch it off";
  key(Qt::Key_Down);
  EXPECT_TRUE(form.Option2.on());
  EXPECT_FALSE(salt.isChecked());
  mouse(salt);
  QTest::mouseDClick(&salt, Qt::LeftButton);
  settle();
  EXPECT_FALSE(form.Option1.on() || salt.isChecked());

  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
  settle();
  mouse(form.Text11);
  keys("a");
  key(Qt::Key_Return);
  keys("b");
  EXPECT_EQ(form.Text11.text(), "a\nb");
}

TEST_F(Look, PastingStaysInTheBoxAndOtherCommandsReachTheMenu) {
  addDives(1, 2);
  auto& form = insert();
  QApplication::clipboard()->setText("Äußere Hebriden und weiter");
  mouse(form.Text3);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.Text3.text(), "Äußere Hebriden und ");
  EXPECT_TRUE(app->loaded(2));
  key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  mouse(form.Text1);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(app->loaded(3)) << "a locked box pastes nothing, so the command is the menu's";
  EXPECT_FALSE(app->loaded(2));
}

TEST_F(Look, TheListLeadsAndFollowsAndTheNavigatorLeavesTheFocus) {
  addDives(1, 300);
  auto& form = view();
  auto& list = widget<QAbstractItemView>(form.List1);
  list.scrollTo(list.model()->index(99, 0));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualRect(list.model()->index(99, 0)).center());
  settle();
  EXPECT_EQ(form.Text1.text(), "100");
  key(Qt::Key_Down);
  EXPECT_EQ(form.Text1.text(), "101");
  expectFocus(form.List1);
  auto arrows = widget<NavigatorBar>(form.Data1).findChildren<QAbstractButton*>();
  ASSERT_EQ(arrows.size(), 4);
  mouse(*arrows[2]);
  EXPECT_EQ(form.Text1.text(), "102");
  EXPECT_EQ(list.currentIndex().row(), 101);
  expectFocus(form.List1);
}

TEST_F(Look, MinimisedAndRestoredByRuleAndClosedByItsFrame) {
  addDives(1, 2);
  auto& form = view();
  auto* frame = qobject_cast<QMdiSubWindow*>(window(form));
  const auto place = frame->geometry();
  app->handle([&] { form.setWindowState(WindowState::Minimized); });
  settle();
  EXPECT_TRUE(frame->isMinimized());
  app->handle([&] { form.setWindowState(WindowState::Normal); });
  settle();
  EXPECT_FALSE(frame->isMinimized());
  EXPECT_EQ(frame->geometry(), place);
  frame->close();
  settle();
  EXPECT_FALSE(app->loaded(3));
}

TEST_F(Look, TheStatusBarGivesWayToTheProgress) {
  addDives(1, 2);
  start();
  auto& frame = app->MDIForm1();
  EXPECT_TRUE(widget(frame.StatusBar1).isVisible());
  app->handle([&] {
    app->Modul1().FortschrittMaximum = 2;
    app->Modul1().FortschrittAnzeigen();
  });
  settle();
  EXPECT_TRUE(widget(frame.ProgressBar1).isVisible());
  EXPECT_FALSE(widget(frame.StatusBar1).isVisible());
}

}  // namespace
}  // namespace nautrel
