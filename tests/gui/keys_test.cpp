// SPDX-License-Identifier: GPL-2.0-or-later
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <set>

#include "calculators/Form21.h"
#include "dives/Form13.h"
#include "dives/Form4.h"
#include "gui/gui_test.h"
#include "look/contrast.h"

namespace nautrel {
namespace {

class Keys : public GuiTest {
 protected:
  /// The captions of the menu that stands open, which Esc then closes.
  QStringList openMenu() {
    QStringList captions;
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return captions;
    for (const auto* action : menu->actions())
      if (action->isVisible() && !action->isSeparator()) captions += action->text();
    while (QApplication::activePopupWidget() != nullptr) key(Qt::Key_Escape);
    return captions;
  }
  bool pastes() const {
    const auto* front = app->activeForm();
    const auto* box = dynamic_cast<TextBox*>(front->activeControl());
    return (box != nullptr && !box->locked()) ||
           dynamic_cast<ComboBox*>(front->activeControl()) != nullptr;
  }
};

TEST_F(Keys, EveryCommandAnswersToItsKeyWhateverWindowIsInFront) {
  addDives(1, 3);
  start();
  std::map<std::string, int> runs;
  for (auto* menu : app->MDIForm1().menus())
    for (auto* item : menu->items())
      if (item != nullptr && !item->shortcut().empty())
        item->Click = [&runs, keys = item->shortcut()] { ++runs[keys]; };
  app->handle([&] { app->show(21); });
  forEveryWindow([&](Form& form) {
    runs = {{"Ctrl+P", 0}, {"Ctrl+U", 0}, {"Ctrl+E", 0}, {"F1", 0},     {"F2", 0},
            {"F3", 0},     {"Ctrl+V", 0}, {"Ctrl+W", 0}, {"Ctrl+N", 0}, {"Ctrl+T", 0},
            {"Ctrl+J", 0}, {"Ctrl+M", 0}, {"Ctrl+F1", 0}};
    for (const auto& [keys, count] : std::map(runs)) {
      const auto pressed = QKeySequence(toQt(keys))[0];
      key(pressed.key(), pressed.keyboardModifiers());
    }
    for (const auto& [keys, count] : runs)
      EXPECT_EQ(count, keys == "Ctrl+V" && pastes() ? 0 : 1) << form.name() << ": " << keys;
  });
}

TEST_F(Keys, GoRoundTheWindowsMoveAndCloseThem) {
  addDives(1, 3);
  auto& table = open(&MDIForm1::Menü3d, &Nautrel::Form13);
  click(app->MDIForm1().Menü7a);
  click(app->MDIForm1().Menü7c);
  settle();
  std::vector<int> round;
  const std::pair<Qt::Key, Qt::KeyboardModifiers> turns[] = {
      {Qt::Key_Tab, Qt::ControlModifier},
      {Qt::Key_F6, Qt::ControlModifier},
      {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier},
      {Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier}};
  for (const auto& [code, modifiers] : turns) {
    key(code, modifiers);
    for (const int number : {13, 21, 22})
      if (app->activeForm() == app->ifLoaded(number)) round.push_back(number);
    EXPECT_EQ(looks->mainFrame()->area().activeSubWindow(), window(*app->activeForm()));
    EXPECT_TRUE(window(*app->activeForm())->isAncestorOf(QApplication::focusWidget()));
  }
  EXPECT_EQ(round, (std::vector<int>{13, 21, 13, 22}));

  key(Qt::Key_Minus, Qt::AltModifier);
  EXPECT_EQ(openMenu(), (QStringList{"&Move", "&Close\tCtrl+F4"}));
  expectFocus(*app->activeForm()->activeControl());
  key(Qt::Key_Tab, Qt::ControlModifier);
  key(Qt::Key_Minus, Qt::AltModifier);
  EXPECT_EQ(openMenu(), (QStringList{"&Restore", "&Move", "&Size", "Mi&nimize", "Ma&ximize",
                                     "&Close\tCtrl+F4"}));
  key(Qt::Key_F10);
  EXPECT_TRUE(openMenu().contains(toQt(app->MDIForm1().Menü1a.caption())));
  EXPECT_EQ(app->activeForm(), &table);
  key(Qt::Key_Minus, Qt::AltModifier);
  key(Qt::Key_M);
  const auto place = table.Left();
  key(Qt::Key_Left);
  key(Qt::Key_Left);
  key(Qt::Key_Return);
  EXPECT_EQ(table.Left(), place - toTwips(10));
  expectFocus(table.MSFlexGrid1);
  for (const bool left : {true, true, false}) {
    key(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(app->activeForm() != nullptr, left);
    EXPECT_EQ(looks->mainFrame()->area().activeSubWindow() != nullptr, left);
  }
}

TEST_F(Keys, AltAndALetterGoOnFromOneOwnerToTheNextAndTypeNothing) {
  addDives(1, 3);
  auto& form = open(&MDIForm1::Menü2b, &Nautrel::Form4);
  key(Qt::Key_PageDown, Qt::ControlModifier);
  key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(form.SSTab1.Tab(), 2);
  mouse(form.Text14);
  key(Qt::Key_Q, Qt::AltModifier);
  EXPECT_EQ(form.Text14.text(), "");
  key(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(form.Option6.on());
  EXPECT_EQ(form.Text1.text(), "1");
  key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(form.Text1.text(), "2") << "saved, and on to the next dive";
  EXPECT_EQ(rows("Logbuch", {"Stahl"}).front().front(), "Yes");
  mouse(form.Text14);
  key(Qt::Key_C, Qt::AltModifier);
  EXPECT_FALSE(app->loaded(4)) << "behind the box of the weather comes Close";
}

/// How many of the dots are clearly others.
int dotsChanged(const QImage& before, const QImage& after) {
  int changed = 0;
  for (int y = 0; y < before.height(); ++y)
    for (int x = 0; x < before.width(); ++x)
      changed += contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= 3;
  return changed;
}

TEST_F(Keys, TheFocusAndTheButtonOfEnterAreSeenFromTheFirstTabOn) {
  addDives(1, 3);
  start();
  std::set<std::string> seen;
  const auto look = [&](const Control& control) {
    auto* tabs = qobject_cast<QTabWidget*>(&widget(control));
    return (tabs == nullptr ? widget(control) : *tabs->tabBar()).grab().toImage();
  };
  forEveryWindow([&](Form& form) {
    const auto* first = form.activeControl();
    for (int i = 0; i < 60 && (i == 0 || form.activeControl() != first); ++i) {
      const auto* control = form.activeControl();
      const auto where = form.name() + "." + (control == nullptr ? "" : control->name());
      if (control == nullptr) return;
      expectFocus(*control);
      for (const auto* button : window(form)->findChildren<QPushButton*>())
        EXPECT_EQ(button->isDefault(),
                  form.enterButton() != nullptr &&
                      fromQt(button->objectName()) == form.enterButton()->name())
            << where;
      const auto with = look(*control);
      key(Qt::Key_Tab);
      if (form.activeControl() == control) return;
      if (dynamic_cast<const Captioned*>(control) == nullptr &&
          dynamic_cast<const TabStrip*>(control) == nullptr)
        continue;
      EXPECT_GE(dotsChanged(look(*control), with), 30) << where;
      seen.insert(where);
    }
  });
  EXPECT_GE(seen.size(), 60U);
}

}  // namespace
}  // namespace nautrel
