// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractScrollArea>
#include <QClipboard>
#include <QDialog>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QToolBar>
#include <QWheelEvent>
#include <algorithm>
#include <csignal>
#include <iostream>
#include <map>
#include <numeric>
#include <optional>
#include <random>
#include <sstream>

#include "gui/agreement.h"
#include "gui/gui_test.h"
#include "support/budget.h"

namespace nautrel {
namespace {

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
  bool oneIn(int count) { return below(count) == 0; }
  template <class Values>
  auto& of(Values&& values) {
    return *std::next(std::begin(values), below(static_cast<int>(std::size(values))));
  }

 private:
  std::mt19937 engine_;
};

std::vector<std::string> warnings;

void keepWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
  const bool ofNoMeaning = text.startsWith("This plugin does not support") ||
                           text.contains("occurs outside target window");
  if (type != QtDebugMsg && type != QtInfoMsg && !ofNoMeaning)
    warnings.push_back("Qt: " + fromQt(text));
}

/// One run of the program under random hands. Each step has its own chances, so that leaving one
/// out changes nothing of the others.
class Session : public GuiTest {
 public:
  explicit Session(unsigned seed);
  ~Session() override;
  void TestBody() override {}

  /// What is wrong after the step; empty if nothing is.
  std::vector<std::string> step(unsigned number);
  bool ended() const { return desktop->ended(); }
  std::ostringstream did;  // in the last step

 private:
  using GuiTest::window;
  void act();
  void mouse();
  void key();
  void type();
  void bring();
  void drop(QWindow& top, QPoint place, const QString& text);
  void command();
  void frame();
  void breakLoops();
  void boxOpens();
  QWidget& target();
  QPoint placeIn(const QWidget& widget);
  QWindow* window() { return looks->mainFrame()->window().windowHandle(); }

  unsigned seed_;
  Dice dice_;
  std::vector<std::string> found_;
  std::function<void()> letGo_;  // releases the mouse
  QTimer loops_;
};

Session::Session(unsigned seed) : seed_(seed), dice_(seed) {
  const int dives = dice_.of(std::initializer_list<int>{0, 1, 2, 30, 30, 300});
  addDives(1, dives);
  if (dice_.oneIn(4)) add(someDive(5));
  folder.write("file", "picture");
  static const char* const starts[] = {"", "", "Insert dive", "View logbook", "Search a word"};
  desktop->settings[{"Start", "Window"}] = dice_.of(starts);
  if (dice_.oneIn(2))
    desktop->settings.insert({{{"Start", "Fenster"}, "Ben"},
                              {{"Start", "Breite"}, "11400"},
                              {{"Start", "Höhe"}, "10500"},
                              {{"Start", "Links"}, "300"},
                              {{"Start", "Oben"}, "150"}});
  desktop->dice = [this](int count) { return dice_.below(count); };
  desktop->whileBoxIsOpen = [this] { boxOpens(); };
  QObject::connect(&loops_, &QTimer::timeout, &loops_, [this] { breakLoops(); });
  start();
  settle();
}

// As in life, the windows go after the end.
Session::~Session() {
  app->handle([this] { desktop->end(); });
  (void)desktop->failure();
}

// A menu or a dragged text that runs in a loop of its own would never come back.
void Session::breakLoops() {
  if (letGo_) std::exchange(letGo_, nullptr)();
  if (auto* popup = QApplication::activePopupWidget()) popup->close();
}

// A real box takes the window's place at the keyboard for a while.
void Session::boxOpens() {
  for (auto& line : disagreements(*app, *looks, true)) found_.push_back(line + " (box open)");
  if (looks->mainFrame() == nullptr || !dice_.oneIn(3)) return;
  auto& main = looks->mainFrame()->window();
  QDialog box(&main);
  box.setModal(true);
  box.show();
  settle();
  box.hide();
  main.activateWindow();
}

std::vector<std::string> Session::step(unsigned number) {
  dice_ = Dice(seed_ * 7919 + number);
  did.str({});
  found_.clear();
  warnings.clear();
  loops_.start(30);
  try {
    if (number > 0) act();
    settle();
    // A window manager gives the keyboard back to who had it before a menu.
    if (QApplication::activePopupWidget() == nullptr && !ended())
      looks->mainFrame()->window().activateWindow();
    settle();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  } catch (const std::exception& failure) {
    found_.push_back(std::string("an exception: ") + failure.what());
  }
  loops_.stop();
  found_.insert(found_.end(), warnings.begin(), warnings.end());
  if (!ended()) {
    const auto wrong = disagreements(*app, *looks);
    found_.insert(found_.end(), wrong.begin(), wrong.end());
  }
  return found_;
}

void Session::act() {
  const int kind = dice_.below(100);
  const bool menuIsOpen = QApplication::activePopupWidget() != nullptr;
  if (kind < 45) return mouse();
  if (kind < 67 || menuIsOpen) return key();
  if (kind < 77) return type();
  if (kind < 84) return bring();
  if (kind < 92) return command();
  frame();
}

/// A widget in sight, most often one of the window in front.
QWidget& Session::target() {
  QWidget* from = &looks->mainFrame()->window();
  if (!dice_.oneIn(4) && app->activeForm() != nullptr) from = window(*app->activeForm());
  if (auto* popup = QApplication::activePopupWidget(); popup != nullptr && !dice_.oneIn(4))
    from = popup;
  std::vector<QWidget*> seen{from};
  for (auto* widget : from->findChildren<QWidget*>())
    if (!widget->visibleRegion().isEmpty() && !widget->isWindow()) seen.push_back(widget);
  return *dice_.of(seen);
}

QPoint Session::placeIn(const QWidget& widget) {
  const auto seen = widget.visibleRegion().boundingRect();
  auto place = seen.center();
  if (!seen.isEmpty() && dice_.oneIn(2))
    place = seen.topLeft() + QPoint(dice_.below(seen.width()), dice_.below(seen.height()));
  return widget.mapTo(widget.window(), place);
}

void Session::mouse() {
  static const char* const kinds[] = {"click", "click",        "click", "click", "click",
                                      "click", "double click", "drag",  "drag",  "wheel"};
  static const Qt::KeyboardModifiers helds[] = {Qt::NoModifier,    Qt::NoModifier,
                                                Qt::NoModifier,    Qt::NoModifier,
                                                Qt::ShiftModifier, Qt::ControlModifier};
  const auto& widget = target();
  auto* top = widget.window()->windowHandle();
  const auto place = placeIn(widget);
  const auto& other = dice_.oneIn(2) ? widget : target();
  const auto end = other.window() == widget.window() ? placeIn(other) : place;
  const auto button = dice_.oneIn(6) ? Qt::RightButton : Qt::LeftButton;
  const auto held = dice_.of(helds);
  const QString kind = dice_.of(kinds);
  did << fromQt(kind) << " on " << fromQt(widget.objectName()) << " ("
      << widget.metaObject()->className() << ") at " << place.x() << ',' << place.y() << " to "
      << end.x() << ',' << end.y() << ", button " << button << ", held " << held.toInt();
  if (kind == "click") QTest::mouseClick(top, button, held, place);
  if (kind == "double click") QTest::mouseDClick(top, button, held, place);
  if (kind == "drag") {
    QTest::mousePress(top, button, held, place);
    letGo_ = [=] { QTest::mouseRelease(top, button, held, end); };
    QTest::mouseMove(top, (place + end) / 2);
    if (letGo_) QTest::mouseMove(top, end);
    if (letGo_) std::exchange(letGo_, nullptr)();
  }
  if (kind == "wheel") {
    QWheelEvent wheel(place, top->mapToGlobal(place), {}, {0, dice_.oneIn(2) ? 120 : -120},
                      Qt::NoButton, held, Qt::NoScrollPhase, false);
    QApplication::sendEvent(top, &wheel);
  }
}

void Session::key() {
  static const Qt::Key often[] = {
      Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
      Qt::Key_Escape,    Qt::Key_Space,  Qt::Key_Up,      Qt::Key_Down,   Qt::Key_Left,
      Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,     Qt::Key_PageUp, Qt::Key_PageDown,
      Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Insert,  Qt::Key_F4,     Qt::Key_F6,
      Qt::Key_F10,       Qt::Key_Minus,  Qt::Key_Menu};
  static const Qt::KeyboardModifiers held[] = {
      Qt::NoModifier,    Qt::NoModifier,
      Qt::NoModifier,    Qt::NoModifier,
      Qt::ShiftModifier, Qt::ControlModifier,
      Qt::AltModifier,   Qt::ControlModifier | Qt::ShiftModifier};
  const int other = dice_.oneIn(8) ? Qt::Key_F1 + dice_.below(4) : Qt::Key_0 + dice_.below(43);
  const auto code = dice_.oneIn(3) ? static_cast<Qt::Key>(other) : dice_.of(often);
  const auto modifiers = dice_.of(held);
  did << "key " << fromQt(QKeySequence(QKeyCombination(modifiers, code)).toString());
  QTest::keyClick(window(), code, modifiers);
}

void Session::type() {
  const QString text = dice_.of(QString("1,12,2,31,1999,3.5,a,land,x y,-1").split(','));
  did << "type " << fromQt(text);
  for (const auto character : text) QTest::keyClick(window(), character.toLatin1());
}

/// A text comes in by another way than the keyboard.
void Session::bring() {
  const auto text = dice_.of(QStringList{"1", "12", "0", "3.5", "a", "Land", QString(300, 'x'), " ",
                                         "one\r\ntwo\n", "\n", "tab\tbell\a", "", "Äöß",
                                         QString::fromUtf8("\U0001F41F\U0001F420")});
  const auto& widget = target();
  auto* receiver = QGuiApplication::focusObject();
  const int kind = dice_.below(3);
  did << "bring " << fromQt(text.left(20)) << " way " << kind << ' ' << fromQt(widget.objectName());
  if (kind == 0) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(window(), Qt::Key_V, Qt::ControlModifier);
  } else if (kind == 1 && receiver != nullptr) {
    QInputMethodEvent draft(QStringLiteral("k"), {});
    QInputMethodEvent commit;
    if (!dice_.oneIn(4)) commit.setCommitString(text);
    QApplication::sendEvent(receiver, &draft);
    QApplication::sendEvent(receiver, &commit);
  } else {
    drop(*widget.window()->windowHandle(), placeIn(widget), text);
  }
}

void Session::drop(QWindow& top, QPoint place, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDragLeaveEvent leave;
  QApplication::sendEvent(&top, &enter);
  QApplication::sendEvent(&top, &move);
  QApplication::sendEvent(&top, move.isAccepted() ? static_cast<QEvent*>(&drop) : &leave);
}

void Session::command() {
  auto actions = looks->mainFrame()->window().findChild<QToolBar*>()->actions();
  for (auto* menu : app->MDIForm1().menus())
    if (menu->visible()) actions += looks->mainFrame()->menu(*menu).actions();
  auto* action = dice_.of(actions);
  if (action->text() == "&Close" && !dice_.oneIn(5)) return;
  did << "command " << fromQt(action->text());
  action->trigger();
}

/// The windows' frames.
void Session::frame() {
  auto& main = looks->mainFrame()->window();
  const auto children = looks->mainFrame()->area().subWindowList();
  const QPoint place(dice_.below(700), dice_.below(500));
  const QSize size(300 + dice_.below(700), 200 + dice_.below(600));
  if (children.isEmpty() || dice_.oneIn(5)) {
    const int kind = dice_.below(main.isMaximized() ? 3 : 5);
    did << "main window, way " << kind;
    if (kind == 0) main.showNormal();
    if (kind == 1) main.showMaximized();
    if (kind == 2) boxOpens();
    if (kind == 3) main.resize(size);
    if (kind == 4) main.move(place);
    return;
  }
  auto* child = dice_.of(children);
  const bool sizable = child->windowFlags() & Qt::WindowMaximizeButtonHint;
  const int kind = dice_.below(sizable ? 8 : 5);
  did << "window " << fromQt(child->windowTitle()) << ", way " << kind;
  if (kind == 0) child->showNormal();
  if (kind < 3) looks->mainFrame()->area().setActiveSubWindow(child);
  if (kind == 3) child->move(place);
  if (kind == 4) child->close();
  if (kind == 5) child->showMaximized();
  if (kind == 6) child->showMinimized();
  if (kind == 7) child->resize(size);
}

struct Failure {
  unsigned seed = 0;
  std::vector<unsigned> steps;
  std::vector<std::string> did;
  std::vector<std::string> found;
  /// What it is about, without the values.
  std::string kind() const { return found.front().substr(0, found.front().find(": ")); }
};

volatile unsigned seedNow = 0;
volatile unsigned stepNow = 0;
long stepsDone = 0;

void tellCrash(int signal) {
  std::fprintf(stderr, "Crashed: seed %u, step %u\n", seedNow, stepNow);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

std::optional<Failure> run(unsigned seed, const std::vector<unsigned>& steps) {
  seedNow = seed;
  Session session(seed);
  Failure failure{seed, {}, {}, {}};
  for (const auto number : steps) {
    if (session.ended()) break;
    stepNow = number;
    ++stepsDone;
    failure.found = session.step(number);
    failure.steps.push_back(number);
    failure.did.push_back(session.did.str());
    if (!failure.found.empty()) return failure;
  }
  return {};
}

/// The fewest steps that still show the same.
Failure shrunk(Failure failure) {
  QElapsedTimer time;
  time.start();
  for (std::size_t part = failure.steps.size() / 2; part > 0; part /= 2)
    for (std::size_t from = 0; from + part <= failure.steps.size() && time.elapsed() < 20'000;) {
      auto fewer = failure.steps;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(from),
                  fewer.begin() + static_cast<std::ptrdiff_t>(from + part));
      const auto again = run(failure.seed, fewer);
      if (again && again->kind() == failure.kind())
        failure = *again;
      else
        from += part;
    }
  return failure;
}

std::string report(const Failure& failure) {
  std::ostringstream text;
  text << "NAUTREL_REPLAY=\"" << failure.seed;
  for (const auto step : failure.steps) text << ' ' << step;
  text << "\"\n";
  for (const auto& line : failure.did) text << "  " << line << '\n';
  for (const auto& line : failure.found) text << "  => " << line << '\n';
  return text.str();
}

TEST(Monkey, TheScreenSaysWhatTheModelsSay) {
  constexpr unsigned kSteps = 100;
  constexpr int kSessions = 60;
  const auto before = qInstallMessageHandler(keepWarning);
  for (const int signal : {SIGSEGV, SIGABRT, SIGFPE}) std::signal(signal, tellCrash);
  if (const char* told = std::getenv("NAUTREL_REPLAY")) {
    std::istringstream numbers(told);
    unsigned seed = 0;
    numbers >> seed;
    const auto failure =
        run(seed, {std::istream_iterator<unsigned>(numbers), std::istream_iterator<unsigned>()});
    qInstallMessageHandler(before);
    if (failure) FAIL() << report(*failure);
    return;
  }
  const unsigned first = seedOfRun();
  unsigned seed = first;
  std::vector<unsigned> steps(kSteps);
  std::iota(steps.begin(), steps.end(), 0U);
  std::map<std::string, int> kinds;
  for (const Budget budget(kSessions); budget.allows(static_cast<int>(seed - first)); ++seed) {
    const auto failure = run(seed, steps);
    if (failure && kinds[failure->kind()]++ == 0) ADD_FAILURE() << report(shrunk(*failure));
  }
  qInstallMessageHandler(before);
  std::cout << stepsDone << " steps, seeds " << first << " to " << seed - 1 << '\n';
  for (const auto& [kind, times] : kinds) std::cout << "  " << times << " times: " << kind << '\n';
}

}  // namespace
}  // namespace nautrel
