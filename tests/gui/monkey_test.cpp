// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractScrollArea>
#include <QDialog>
#include <QElapsedTimer>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <algorithm>
#include <csignal>
#include <iostream>
#include <map>
#include <numeric>
#include <optional>
#include <random>
#include <sstream>

#include "gui/agreement.h"
#include "gui/companion_test.h"
#include "gui/gui_test.h"
#include "gui/hands.h"
#include "support/budget.h"

namespace nautrel {
namespace {

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
  std::string did() const { return hands_.did.str(); }

 private:
  void act();
  void command();
  void frame();
  void boxOpens();

  unsigned seed_;
  std::vector<std::string> found_;
  Hands hands_{*app, *looks};
};

Session::Session(unsigned seed) : seed_(seed) {
  hands_.dice = Dice(seed);
  const int dives = hands_.dice.of(std::initializer_list<int>{0, 1, 2, 30, 30, 300});
  addDives(1, dives);
  if (hands_.dice.oneIn(4)) add(someDive(5));
  folder.write("file", "picture");
  static const char* const starts[] = {"", "", "Insert dive", "View logbook", "Search a word"};
  desktop->settings[{"Start", "Window"}] = hands_.dice.of(starts);
  if (hands_.dice.oneIn(2))
    desktop->settings.insert({{{"Start", "Fenster"}, "Ben"},
                              {{"Start", "Breite"}, "11400"},
                              {{"Start", "Höhe"}, "10500"},
                              {{"Start", "Links"}, "300"},
                              {{"Start", "Oben"}, "150"}});
  desktop->dice = [this](int count) { return hands_.dice.below(count); };
  desktop->whileBoxIsOpen = [this] { boxOpens(); };
  start();
  settle();
}

// As in life, the windows go after the end.
Session::~Session() {
  app->handle([this] { desktop->end(); });
  (void)desktop->failure();
}

// A real box takes the window's place at the keyboard for a while.
void Session::boxOpens() {
  for (auto& line : disagreements(*app, *looks, true)) found_.push_back(line + " (box open)");
  if (looks->mainFrame() == nullptr || !hands_.dice.oneIn(3)) return;
  auto& main = looks->mainFrame()->window();
  QDialog box(&main);
  box.setModal(true);
  box.show();
  settle();
  box.hide();
  main.activateWindow();
}

std::vector<std::string> Session::step(unsigned number) {
  found_.clear();
  warnings.clear();
  hands_.begin(seed_ * 7919 + number);
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
  hands_.end();
  found_.insert(found_.end(), warnings.begin(), warnings.end());
  if (!ended()) {
    const auto wrong = disagreements(*app, *looks);
    found_.insert(found_.end(), wrong.begin(), wrong.end());
  }
  return found_;
}

void Session::act() {
  const int kind = hands_.dice.below(100);
  const bool menuIsOpen = QApplication::activePopupWidget() != nullptr;
  if (kind < 45) return hands_.mouse();
  if (kind < 67 || menuIsOpen) return hands_.key();
  if (kind < 77) return hands_.type();
  if (kind < 84) return hands_.bring();
  if (kind < 92) return command();
  frame();
}

void Session::command() {
  auto actions = looks->mainFrame()->window().findChild<QToolBar*>()->actions();
  for (auto* menu : app->MDIForm1().menus())
    if (menu->visible()) actions += looks->mainFrame()->menu(*menu).actions();
  auto* action = hands_.dice.of(actions);
  if (action->text() == "&Close" && !hands_.dice.oneIn(5)) return;
  hands_.did << "command " << fromQt(action->text());
  action->trigger();
}

/// The windows' frames.
void Session::frame() {
  auto& main = looks->mainFrame()->window();
  const auto children = looks->mainFrame()->area().subWindowList();
  const QPoint place(hands_.dice.below(700), hands_.dice.below(500));
  const QSize size(300 + hands_.dice.below(700), 200 + hands_.dice.below(600));
  if (children.isEmpty() || hands_.dice.oneIn(5)) {
    const int kind = hands_.dice.below(main.isMaximized() ? 3 : 5);
    hands_.did << "main window, way " << kind;
    if (kind == 0) main.showNormal();
    if (kind == 1) main.showMaximized();
    if (kind == 2) boxOpens();
    if (kind == 3) main.resize(size);
    if (kind == 4) main.move(place);
    return;
  }
  auto* child = hands_.dice.of(children);
  const bool sizable = child->windowFlags() & Qt::WindowMaximizeButtonHint;
  const int kind = hands_.dice.below(sizable ? 8 : 5);
  hands_.did << "window " << fromQt(child->windowTitle()) << ", way " << kind;
  if (kind == 0) child->showNormal();
  if (kind < 3) looks->mainFrame()->area().setActiveSubWindow(child);
  if (kind == 3) child->move(place);
  if (kind == 4) child->close();
  if (kind == 5) child->showMaximized();
  if (kind == 6) child->showMinimized();
  if (kind == 7) child->resize(size);
}

/// The companion's window under the same hands.
class CompanionSession : public CompanionTest {
 public:
  explicit CompanionSession(unsigned seed);
  ~CompanionSession() override {
    app->handle([this] { desktop->end(); });
  }
  void TestBody() override {}

  std::vector<std::string> step(unsigned number);
  bool ended() const { return desktop->ended(); }
  std::string did() const { return hands_.did.str(); }

 private:
  void act();

  unsigned seed_;
  Hands hands_{*app, *looks};
};

CompanionSession::CompanionSession(unsigned seed) : seed_(seed) {
  hands_.dice = Dice(seed);
  std::string file = "Date,Duration,Max Depth,Site\n";
  for (int line = hands_.dice.below(40); line > 0; --line)
    file += "0" + std::to_string(1 + hands_.dice.below(9)) +
            "/04/2020,0:" + std::to_string(10 + hands_.dice.below(50)) + "," +
            std::to_string(hands_.dice.below(120)) + ",Reef\n";
  book.folder.write("file.csv", file);
  desktop->dice = [this](int count) { return hands_.dice.below(count); };
}

void CompanionSession::act() {
  const int kind = hands_.dice.below(100);
  if (kind < 50) return hands_.mouse();
  if (kind < 75) return hands_.key();
  if (kind < 83) return hands_.type();
  if (kind < 90) return hands_.bring();
  hands_.did << "a file is dropped";
  form.userDrop(book.folder.file("file.csv"));
}

std::vector<std::string> CompanionSession::step(unsigned number) {
  warnings.clear();
  hands_.begin(seed_ * 7919 + number);
  if (number > 0) act();
  settle();
  if (!ended()) looks->topWindow()->activateWindow();
  settle();
  hands_.end();
  auto found = warnings;
  if (ended()) return found;
  for (auto& line : disagreements(*app, *looks)) found.push_back(std::move(line));
  return found;
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

template <class Kind>
std::optional<Failure> run(unsigned seed, const std::vector<unsigned>& steps) {
  seedNow = seed;
  Kind session(seed);
  Failure failure{seed, {}, {}, {}};
  for (const auto number : steps) {
    if (session.ended()) break;
    stepNow = number;
    ++stepsDone;
    failure.found = session.step(number);
    failure.steps.push_back(number);
    failure.did.push_back(session.did());
    if (!failure.found.empty()) return failure;
  }
  return {};
}

/// The fewest steps that still show the same.
template <class Kind>
Failure shrunk(Failure failure) {
  QElapsedTimer time;
  time.start();
  for (std::size_t part = failure.steps.size() / 2; part > 0; part /= 2)
    for (std::size_t from = 0; from + part <= failure.steps.size() && time.elapsed() < 20'000;) {
      auto fewer = failure.steps;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(from),
                  fewer.begin() + static_cast<std::ptrdiff_t>(from + part));
      const auto again = run<Kind>(failure.seed, fewer);
      if (again && again->kind() == failure.kind())
        failure = *again;
      else
        from += part;
    }
  return failure;
}

std::string report(const Failure& failure) {
  std::ostringstream text;
  text << '"' << failure.seed;
  for (const auto step : failure.steps) text << ' ' << step;
  text << "\"\n";
  for (const auto& line : failure.did) text << "  " << line << '\n';
  for (const auto& line : failure.found) text << "  => " << line << '\n';
  return text.str();
}

template <class Kind>
void play(int sessions, const char* replay) {
  constexpr unsigned kSteps = 100;
  const auto before = qInstallMessageHandler(keepWarning);
  for (const int signal : {SIGSEGV, SIGABRT, SIGFPE}) std::signal(signal, tellCrash);
  if (const char* told = std::getenv(replay)) {
    std::istringstream numbers(told);
    unsigned seed = 0;
    numbers >> seed;
    const auto failure = run<Kind>(
        seed, {std::istream_iterator<unsigned>(numbers), std::istream_iterator<unsigned>()});
    qInstallMessageHandler(before);
    if (failure) FAIL() << report(*failure);
    return;
  }
  const unsigned first = seedOfRun();
  unsigned seed = first;
  std::vector<unsigned> steps(kSteps);
  std::iota(steps.begin(), steps.end(), 0U);
  std::map<std::string, int> kinds;
  for (const Budget budget(sessions); budget.allows(static_cast<int>(seed - first)); ++seed) {
    const auto failure = run<Kind>(seed, steps);
    if (failure && kinds[failure->kind()]++ == 0)
      ADD_FAILURE() << replay << "=" << report(shrunk<Kind>(*failure));
  }
  qInstallMessageHandler(before);
  std::cout << stepsDone << " steps, seeds " << first << " to " << seed - 1 << '\n';
  for (const auto& [kind, times] : kinds) std::cout << "  " << times << " times: " << kind << '\n';
}

TEST(Monkey, TheScreenSaysWhatTheModelsSay) {
  play<Session>(60, "NAUTREL_REPLAY");
}

TEST(Monkey, TheCompanionsScreenSaysWhatItsModelSays) {
  play<CompanionSession>(12, "NAUTREL_REPLAY_COMPANION");
}

}  // namespace
}  // namespace nautrel
