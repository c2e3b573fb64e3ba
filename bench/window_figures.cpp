// SPDX-License-Identifier: GPL-2.0-or-later
// What a diver with 9,998 dives waits for, in the real windows: prints each figure beside its goal.
// Run it under a display, or with QT_QPA_PLATFORM=offscreen.

#include <sqlite3.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <algorithm>
#include <cstdio>
#include <fstream>

#include "app/MDIForm1.h"
#include "app/Nautrel.h"
#include "bench_support.h"
#include "dives/Form2.h"
#include "dives/Form3.h"
#include "look/application.h"
#include "look/convert.h"
#include "look/frame/form_view.h"
#include "look/frame/qt_looks.h"
#include "look/system/qt_desktop.h"
#include "search/Form20.h"
#include "shell/Form1.h"
#include "shell/Modul1.h"

namespace nautrel::bench {
namespace {

/// The real desktop over the bench's own logbook, with no settings of anybody's.
class BenchDesktop : public QtDesktop {
 public:
  explicit BenchDesktop(std::string folder) : folder_(std::move(folder)) {}

 protected:
  std::string executableFolder() override { return folder_; }
  std::string readSetting(const std::string&, const std::string&) override { return {}; }
  void writeSetting(const std::string&, const std::string&, const std::string&) override {}
  int showMessage(const std::string& prompt, int, const std::string&) override {
    std::printf("A message came: %s\n", prompt.c_str());
    return kOk;
  }

 private:
  std::string folder_;
};

void settleScreen() {
  QApplication::processEvents();
  QApplication::sendPostedEvents();
  QApplication::processEvents();
}

double residentMegabytes() {
  long pages = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / (1 << 20);
}

void print(const char* what, double figure, const char* unit, double goal) {
  std::printf("%-58s %9.2f %-3s goal %6.0f %s\n", what, figure, unit, goal,
              figure <= goal ? "" : "MISSED");
}

/// The median of some rounds, in milliseconds.
template <class Action>
double median(int rounds, Action&& action) {
  std::vector<double> times;
  for (int round = 0; round < rounds; ++round) {
    QElapsedTimer timer;
    timer.start();
    action();
    settleScreen();
    times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

template <class Action>
double once(Action&& action) {
  return median(1, action);
}

/// Makes the last dive show a photo of twelve megapixels.
void linkPhoto(const Logbook& logbook) {
  const auto photo = (logbook.folder() / "photo.jpg").string();
  QImage image(4000, 3000, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      image.setPixel(x, y, qRgb(x * y % 251, (x + y) % 256, (x ^ y) % 256));
  image.save(toQt(photo), "JPG", 85);
  Bare file(logbook.path());
  file.run(("UPDATE Logbuch SET Grafik = NULL WHERE Grafik IS NOT NULL"));
  file.run(("UPDATE Logbuch SET Grafik = '" + photo + "' WHERE Nr = '9998'").c_str());
  file.settle();
}

/// Every dive is a hit, and the hits appear while the pass runs.
void measureSearch(Nautrel& app) {
  app.MDIForm1().Menü3e.userClick();
  auto& search = app.Form20();
  const auto again = [&] {
    search.neue_Suche();
    search.Combo1.userReplace(0, 0, "water");
    search.Command1.userClick();
  };
  settleScreen();
  print("full search that finds every dive", once(again), "ms", 500);
  const double memory = residentMegabytes();
  print("the tenth of them", median(9, again), "ms", 500);
  print("memory that nine searches have kept", residentMegabytes() - memory, "MB", 1);
  search.List1.userSelect(search.List1.ListCount() - 1);
  print("a hit opens, with all of them beside it",
        once([&] { search.List1.userDoubleClick(search.List1.ListIndex()); }), "ms", 150);
}

void measure(const Logbook& logbook) {
  BenchDesktop desktop(logbook.folder().string());
  Nautrel app(desktop);
  QtLooks looks(app);
  desktop.setLooks(&looks);
  app.setLooks(&looks);

  app.start();
  settleScreen();
  print("splash gone to main window usable", once([&] { app.Form1().Timer1.userFires(); }), "ms",
        150);
  print("status panel anew", median(51, [&] { app.Modul1().StatusAktualisieren(); }), "ms", 1);
  print("View Logbook opens", once([&] { app.MDIForm1().Menü3a.userClick(); }), "ms", 100);
  auto& view = app.Form3();
  const auto press = [&](Navigator::Arrow arrow) { view.Data1.userPress(arrow); };
  print("one step of the navigator", median(201, [&] { press(Navigator::Arrow::Next); }), "ms", 5);
  print("memory with View Logbook open", residentMegabytes(), "MB", 120);
  print("step to a dive with a photo of 12 megapixels",
        once([&] { press(Navigator::Arrow::Last); }), "ms", 150);
  print("memory with the photo", residentMegabytes(), "MB", 160);

  print("Logbook Table opens", once([&] { app.MDIForm1().Menü3d.userClick(); }), "ms", 150);

  measureSearch(app);

  app.MDIForm1().Menü2a.userClick();
  settleScreen();
  for (auto* box : {&app.Form2().Text2, &app.Form2().Text9, &app.Form2().Text11}) {
    if (box == &app.Form2().Text11) app.Form2().SSTab1.userTab(1);
    box->form().userFocus(*box);
    const auto what = "one keystroke in " + box->name();
    print(what.c_str(), median(51, [&] { box->form().userType("1"); }), "ms", 5);
  }
}

}  // namespace
}  // namespace nautrel::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  nautrel::prepareLook();
  // One less than a full logbook, so that another dive can still be entered.
  const nautrel::bench::Logbook logbook(nautrel::bench::kFullLogbook - 1);
  nautrel::bench::linkPhoto(logbook);
  nautrel::bench::measure(logbook);
  return 0;
}
