// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>
#include <set>

#include "calculators/Form21.h"
#include "dives/Form2.h"
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "gui/gui_test.h"
#include "look/bindings/navigator_bar.h"
#include "search/Form12.h"

namespace nautrel {
namespace {

class Look : public GuiTest {
 protected:
  Form2& insert() { return open(&MDIForm1::Menü2a, &Nautrel::Form2); }
  Form3& view() { return open(&MDIForm1::Menü3a, &Nautrel::Form3); }
};

/// A part of a composed widget, such as an arrow of a spin button, is no control of its own.
bool standsAlone(const QWidget& widget) {
  const auto name = widget.objectName();
  return !name.isEmpty() && !name.startsWith("qt_") && !name.startsWith("Scroll");
}

TEST_F(Look, EveryVisibleControlHasItsWidgetAndEveryInputItsControl) {
  addDives(1, 3);
  start();
  int windows = 0;
  forEveryWindow([&](Form& form) {
    ++windows;
    const auto* view = looks->viewOf(form);
    for (auto* control : form.controls()) {
      if (!control->visible() || dynamic_cast<Timer*>(control) != nullptr) continue;
      const bool plain = dynamic_cast<Frame*>(control) != nullptr;
      EXPECT_TRUE(plain || view->bindingOf(*control) != nullptr)
          << form.name() << ": no widget is bound to " << control->name();
    }
    for (auto* input : window(form)->findChildren<QWidget*>()) {
      if (!isOneOf<QAbstractButton, QLineEdit, QPlainTextEdit, QAbstractItemView, QComboBox>(
              *input) ||
          !standsAlone(*input))
        continue;
      const auto name = fromQt(input->objectName());
      EXPECT_NE(form.control(name), nullptr) << form.name() << ": nothing stands behind " << name;
    }
  });
  EXPECT_GE(windows, 19);
}

const std::set<std::string> kRecordWindows = {"Form2", "Form3", "Form4", "Form5", "Form8"};

TEST_F(Look, EveryWindowFitsTheMainWindowOfAnOldScreenAndThoseOfRecordsTheirTexts) {
  addDives(1, 3);
  desktop->settings = {{{"Start", "Fenster"}, "Ben"},
                       {{"Start", "Breite"}, "15360"},
                       {{"Start", "Höhe"}, "11520"},
                       {{"Start", "Links"}, "0"},
                       {{"Start", "Oben"}, "0"}};
  start();
  const auto& ground = looks->mainFrame()->area();
  forEveryWindow([&](Form& form) {
    auto* shown = window(form);
    EXPECT_TRUE(ground.rect().contains(shown->geometry())) << form.name();
    EXPECT_EQ(shown->size().expandedTo(shown->minimumSizeHint()), shown->size())
        << form.name() << " cuts what it holds";
    if (!kRecordWindows.contains(form.name())) return;
    auto* pages = shown->findChild<QTabWidget*>();
    for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
      if (pages != nullptr) pages->setCurrentIndex(page);
      settle();
      for (auto* part : shown->findChildren<QWidget*>()) {
        if (!isOneOf<QAbstractButton, QLabel, NavigatorBar>(*part) || !standsAlone(*part) ||
            !part->isVisible())
          continue;
        EXPECT_GE(part->width(), part->minimumSizeHint().width())
            << form.name() << ": " << fromQt(part->objectName());
      }
    }
  });
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

TEST_F(Look, PagesOptionsAndCommentsAnswerMouseAndKeys) {
  auto& form = insert();
  auto* tabs = widget<QTabWidget>(form.SSTab1).tabBar();
  const auto turnTo = [&](int page) {
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(page).center());
    settle();
  };
  turnTo(2);
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

  turnTo(1);
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
  choose(form.SSTab1, 1);
  settle();
  mouse(form.Text11);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.Text11.text(), "Äußere Hebriden und weiter");
  ASSERT_TRUE(app->loaded(2));
  choose(form.SSTab1, 0);
  settle();
  mouse(form.Text1);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(app->loaded(3)) << "a locked box pastes nothing, so the command is the menu's";
  EXPECT_FALSE(app->loaded(2));
}

// Two pastes in the middle of a text, and a drop.
TEST_F(Look, NoBreakComesIntoOneLineAndTheCaretStaysBehindWhatCame) {
  addDives(1, 2);
  auto& form = insert();
  auto& box = widget<QLineEdit>(form.Text4);
  QMimeData mime;
  mime.setText("Blue\r\nHole\t\n");
  QApplication::clipboard()->setText(mime.text());
  mouse(form.Text4);
  keys("()");
  key(Qt::Key_Left);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.Text4.text(), "(Blue Hole )");
  EXPECT_EQ(fromQt(box.text()), "(Blue Hole )");
  EXPECT_EQ(box.cursorPosition(), 11);
  box.clear();
  QDragEnterEvent enter({2, 2}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&box, &enter);
  QDropEvent drop({2, 2}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&box, &drop);
  settle();
  EXPECT_EQ(fromQt(box.text()), "Blue Hole ");

  click(app->MDIForm1().Menü3b);
  settle();
  auto& term = app->Form12().Combo1;
  auto& typed = *widget<QComboBox>(term).lineEdit();
  typed.setFocus();
  keys("()");
  key(Qt::Key_Left);
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(term.text(), "(Blue Hole )");
  EXPECT_EQ(fromQt(typed.text()), "(Blue Hole )");
  EXPECT_EQ(typed.cursorPosition(), 11);
  term.AddItem("reef");
  choose(term, 0);
  settle();
  key(Qt::Key_Home);
  keys("b");
  EXPECT_EQ(fromQt(typed.text()), "breef");
  EXPECT_EQ(typed.cursorPosition(), 1) << "also after a line was chosen";
}

TEST_F(Look, APhotoDroppedOnItsPageIsTakenAsIfItHadBeenBrowsedFor) {
  const TemporaryFolder photos;
  photos.write("reef.jpg", "picture");
  auto& form = insert();
  choose(form.SSTab1, 3);
  settle();
  QMimeData mime;
  mime.setUrls({QUrl::fromLocalFile(toQt(photos.file("reef.jpg")))});
  auto& picture = widget(form.Image4);
  for (auto* target : {&picture, picture.parentWidget(), &widget(form.Text21)}) {
    clear(form.Text21);
    settle();
    QDragEnterEvent enter({2, 2}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({2, 2}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    settle();
    EXPECT_EQ(form.Text21.text(), photos.file("reef.jpg"));
    EXPECT_EQ(pathOf(form.Image4.picture()), photos.file("reef.jpg"));
  }
}

TEST_F(Look, TheOptionsOfTheViewStandInLineWithTheirPictures) {
  auto& form = insert();
  choose(form.SSTab1, 2);
  settle();
  for (const int number : {1, 2, 3}) {
    const auto& picture = *window(form)->findChild<QWidget*>(QString("Image%1").arg(number));
    const auto& option =
        *window(form)->findChild<QRadioButton*>(QString("Option%1").arg(number + 6));
    QStyleOptionButton look;
    look.initFrom(&option);
    const auto mark =
        option.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &look, &option);
    EXPECT_NEAR(option.mapTo(window(form), mark.center()).x(),
                picture.mapTo(window(form), picture.rect().center()).x(), 1);
  }
}

TEST_F(Look, AnEditedCommentKeepsEveryOtherCharacter) {
  const std::string kept = "30\u00A0m\u2028two\u2029three\r\nfour\rfive\tsix\n\U0001F41F";
  auto dive = someDive(1);
  dive["Lang"] = kept + "seven";
  add(dive);
  auto& form = open(&MDIForm1::Menü2b, &Nautrel::Form4);
  choose(form.SSTab1, 1);
  settle();
  auto& box = widget<QPlainTextEdit>(form.Text11);
  mouse(form.Text11);
  key(Qt::Key_End, Qt::ControlModifier);
  key(Qt::Key_Backspace);
  keys("m");
  EXPECT_EQ(form.Text11.text(), kept + "sevem");
  key(Qt::Key_Return);
  QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
  keys("x");
  EXPECT_EQ(form.Text11.text(), kept + "sevem\n\nx");
  key(Qt::Key_Home, Qt::ControlModifier);
  key(Qt::Key_Delete);
  EXPECT_EQ(form.Text11.text(), kept.substr(1) + "sevem\n\nx");
  box.selectAll();
  keys("y");
  EXPECT_EQ(form.Text11.text(), "y");
}

TEST_F(Look, TheListLeadsAndFollowsTheNavigatorLeavesTheFocusAndTheFrameCloses) {
  addDives(1, 300);
  auto& form = view();
  auto& list = widget<QAbstractItemView>(form.List1);
  const auto line = list.model()->index(99, 0);
  list.scrollTo(line);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(line).center());
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
  qobject_cast<QMdiSubWindow*>(window(form))->close();
  settle();
  EXPECT_FALSE(app->loaded(3));
}

TEST_F(Look, TheContextMenuBelongsToTheGroundAlone) {
  addDives(1, 2);
  auto& form = insert();
  auto* ground = looks->mainFrame()->area().viewport();
  const auto rightClick = [&](QWidget& target, QPoint place) {
    QTimer::singleShot(0, [] {
      if (auto* menu = QApplication::activePopupWidget()) menu->close();
    });
    QTest::mouseClick(target.window()->windowHandle(), Qt::RightButton, {},
                      target.mapTo(target.window(), place));
    settle();
  };
  rightClick(*window(form), window(form)->rect().bottomRight() - QPoint(8, 8));
  rightClick(*window(form), {window(form)->width() / 2, 10});
  rightClick(widget(form.Check2), {3, 3});
  EXPECT_EQ(desktop->popups.size(), 0u);
  desktop->answerMenu("Menü6c");
  rightClick(*ground, {5, 5});
  EXPECT_TRUE(app->loaded(3));
}

TEST_F(Look, ComingBackToAWindowRunsNoRuleAndFindsTheFocusWhereItWasLeft) {
  auto& form = insert();
  mouse(form.Text5);
  keys("0");
  auto* frame = qobject_cast<QMdiSubWindow*>(window(form));
  const auto leave = [&] {
    click(app->MDIForm1().Menü7a);
    settle();
    EXPECT_FALSE(frame->isAncestorOf(QApplication::focusWidget()));
  };
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"title",
       [&] {
         window(app->Form21())->move(0, 0);
         QTest::mouseClick(frame, Qt::LeftButton, {}, {frame->width() / 2, 10});
       }},
      {"key", [&] { key(Qt::Key_F6, Qt::ControlModifier); }},
      {"code", [&] { app->handle([&] { form.SetFocus(); }); }},
      {"the other's own button", [&] { key(Qt::Key_Escape); }},
      {"another program", [&] {
         form.userActivated();
         QWidget other;
         other.show();
         other.activateWindow();
         settle();
         looks->mainFrame()->window().activateWindow();
       }}};
  for (const auto& [way, comeBack] : ways) {
    leave();
    // The toolkit remembers for its window where the focus was last, right or wrong.
    app->handle([&] { widget(form.Text2).setFocus(); });
    leave();
    comeBack();
    settle();
    EXPECT_EQ(app->activeForm(), &form) << way;
    expectFocus(form.Text5);
    EXPECT_EQ(desktop->texts(), std::vector<std::string>{}) << way;
  }
}

TEST_F(Look, AnAssistiveToolGivesTheFocusToAnyControl) {
  auto& form = insert();
  const auto give = [&](const Control& control) {
    auto* tool = QAccessible::queryAccessibleInterface(&widget(control))->actionInterface();
    tool->doAction(QAccessibleActionInterface::setFocusAction());
    settle();
    expectFocus(control);
  };
  give(form.Text5);
  give(form.Check1);
  click(app->MDIForm1().Menü7a);
  settle();
  give(app->Form21().Text2);
  give(form.Text8);
  EXPECT_EQ(app->activeForm(), &form);
  keys("Anna");
  EXPECT_EQ(form.Text8.text(), "Anna");
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
