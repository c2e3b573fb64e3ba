// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <functional>

#include "look/convert.h"
#include "look/frame/form_view.h"
#include "look/frame/main_frame.h"
#include "look/frame/qt_looks.h"
#include "look/system/qt_desktop.h"
#include "support/logbook.h"

namespace nautrel {

template <class... Kinds>
bool isOneOf(const QWidget& widget) {
  return ((dynamic_cast<const Kinds*>(&widget) != nullptr) || ...);
}

/// A person at real widgets and keys.
class AtTheScreen {
 protected:
  /// Lets the screen come to rest.
  static void settle() {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }

  QWidget* window(const Form& form) { return looks->viewOf(form)->root(); }
  template <class Widget = QWidget>
  Widget& widget(const Control& control) {
    auto* found = window(control.form())->findChild<Widget*>(toQt(control.name()));
    EXPECT_NE(found, nullptr) << control.name();
    return *found;
  }
  /// Presses and releases the mouse in the middle of the widget, and gives the focus as the system
  /// does.
  void mouse(QWidget& target) {
    QTest::mouseClick(&target, Qt::LeftButton);
    settle();
  }
  void mouse(const Control& control) { mouse(widget(control)); }
  /// Sends the keys to the window of the system that has them, as a keyboard does; who gets them
  /// from there is the toolkit's matter, shortcuts included.
  void keys(const QString& text) {
    for (const auto character : text) QTest::keyClick(keyboard(), character.toLatin1());
    settle();
  }
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(keyboard(), code, modifiers);
    settle();
  }
  void expectFocus(const Control& control) {
    EXPECT_EQ(control.form().activeControl(), &control);
    const auto* shown = QApplication::focusWidget();
    const auto* wanted = &widget(control);
    EXPECT_TRUE(shown == wanted || wanted->isAncestorOf(shown))
        << (shown == nullptr ? "nothing" : fromQt(shown->objectName())) << " has the focus, not "
        << control.name();
  }

  std::unique_ptr<QtLooks> looks;

 private:
  /// A system gives the keyboard back to the window behind when a menu closes.
  QWindow* keyboard() {
    if (QGuiApplication::focusWindow() == nullptr) {
      looks->topWindow()->activateWindow();
      settle();
    }
    return QGuiApplication::focusWindow();
  }
};

/// The program with its real look over the scripted desktop, driven by real widgets and keys.
class GuiTest : public LogbookTest, protected AtTheScreen {
 protected:
  GuiTest() {
    looks = std::make_unique<QtLooks>(*app);
    app->setLooks(looks.get());
  }
  ~GuiTest() override {
    app.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    looks.reset();
  }

  void start() {
    LogbookTest::start();
    settle();
  }
  /// A window of the program, opened from the menu.
  template <class Window>
  Window& open(MenuItem MDIForm1::*item, Window& (Nautrel::*window)()) {
    start();
    click(app->MDIForm1().*item);
    settle();
    return (*app.*window)();
  }
  /// Each child window in turn, one at a time.
  void forEveryWindow(const std::function<void(Form&)>& see) {
    for (int number = 2; number <= 22; ++number) {
      app->handle([&] { app->show(number); });
      settle();
      if (auto* form = app->ifLoaded(number)) see(*form);
      app->handle([&] { app->unload(number); });
      settle();
    }
  }
};

/// The real desktop over a folder of the test; only its boxes are not shown.
class FolderDesktop : public QtDesktop {
 public:
  explicit FolderDesktop(std::string folder) : folder_(std::move(folder)) {}
  std::vector<std::string> told;
  std::deque<std::string> files;  // what the save dialogs to come give; without one, cancelled

 protected:
  int showMessage(const std::string& prompt, int, const std::string&) override {
    told.push_back(prompt);
    return kOk;
  }
  std::optional<std::string> askFileToSave(const DialogRequest&) override {
    if (files.empty()) return {};
    const auto file = files.front();
    files.pop_front();
    return file;
  }
  std::string readSetting(const std::string&, const std::string&) override { return {}; }
  std::string executableFolder() override { return folder_; }

 private:
  std::string folder_;
};

}  // namespace nautrel
