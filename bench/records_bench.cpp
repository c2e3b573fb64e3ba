// SPDX-License-Identifier: GPL-2.0-or-later
#include <QApplication>
#include <memory>

#include "app/MDIForm1.h"
#include "app/Nautrel.h"
#include "bench_support.h"
#include "dives/Form5.h"
#include "dives/Form8.h"
#include "look/frame/qt_looks.h"
#include "quiet_desktop.h"
#include "shell/Form1.h"

// The windows that work on the whole logbook, with their look and the progress bar, against the
// same changes by calls of the engine itself; the ratio is to stay under 1.3.

namespace nautrel::bench {
namespace {

// One less than full, so that the logbook may begin at 1 and at 2.
constexpr int kDives = kFullLogbook - 1;

const Logbook& sortedLogbook() {
  static const Logbook made(kDives);
  return made;
}

/// One of its own: with fewer dives the other one would refuse to begin at 2.
const Logbook& shrinkingLogbook() {
  static const Logbook made(kDives);
  return made;
}

/// The program as the diver has it before him, but for the screen.
class Running {
 public:
  explicit Running(const Logbook& logbook)
      : desktop_(logbook.folder().string()),
        app_(std::make_unique<Nautrel>(desktop_)),
        looks_(*app_) {
    app_->setLooks(&looks_);
    app_->start();
    app_->Form1().Timer1.userFires();
    QApplication::processEvents();
  }
  ~Running() { app_.reset(); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  Nautrel& app() { return *app_; }

 private:
  static QApplication& screen() {
    static int count = 1;
    static char name[] = "bench";
    static char* names[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // It stays: at the end of the process the toolkit has gone before it.
    static auto* const application = new QApplication(count, names);
    return *application;
  }

  QApplication& screen_ = screen();
  QuietDesktop desktop_;
  std::unique_ptr<Nautrel> app_;
  QtLooks looks_;
};

int otherStart() {
  static int start = 1;
  return start = 3 - start;
}

void sortLogbook(benchmark::State& state) {
  Running running(sortedLogbook());
  running.app().MDIForm1().Menü1d.userClick();
  auto& form = running.app().Form8();
  for (auto _ : state) {
    form.Text1.setText(std::to_string(otherStart()));
    form.Command1.userClick();
  }
}

void sortBare(benchmark::State& state) {
  for (auto _ : state) {
    Bare file(sortedLogbook().path());
    file.renumber(otherStart());
    file.settle();
  }
}

void deleteFirst(benchmark::State& state) {
  Running running(shrinkingLogbook());
  running.app().MDIForm1().Menü2c.userClick();
  auto& form = running.app().Form5();
  for (auto _ : state) {
    form.Data1.userPress(Navigator::Arrow::First);
    form.Command1.userClick();
  }
}

void deleteFirstBare(benchmark::State& state) {
  for (auto _ : state) {
    Bare file(shrinkingLogbook().path());
    file.run("DELETE FROM Logbuch WHERE rowid = (SELECT min(rowid) FROM Logbuch)");
    file.renumber(1);
    file.settle();
  }
}

const bool kRegistered = [] {
  compare("Sort logbook, all of it", 1, sortLogbook, sortBare);
  compare("Delete dive, all of it", 1, deleteFirst, deleteFirstBare);
  return true;
}();

}  // namespace
}  // namespace nautrel::bench
