// SPDX-License-Identifier: GPL-2.0-or-later
#include <QApplication>

#include "bench_support.h"
#include "look/reports/report_pages.h"
#include "look/reports/report_preview.h"
#include "printing/make_report.h"

// A preview of 500 dives is to be on the screen within 300 ms, one of 9,999 within a second, and as
// soon a PDF of 9,999.

namespace nautrel::bench {
namespace {

/// A logbook with the delivered list template beside it.
class Printed {
 public:
  explicit Printed(int dives) : logbook_(dives) {
    std::filesystem::copy(NAUTREL_REPORTS "/Liste.rpt", logbook_.folder());
  }
  std::unique_ptr<ReportPages> layOut() const {
    const ReportJob job{.templatePath = file("Liste.rpt"),
                        .selectionFormula = "ToNumber ({Logbuch.Nr}) in 1 to 9999"};
    return nautrel::layOut(makeReport(job, {}, {}), {QPageSize(QPageSize::A4),
                                                     QPageLayout::Portrait,
                                                     {15, 15, 15, 15},
                                                     QPageLayout::Millimeter});
  }
  std::string file(const std::string& name) const { return (logbook_.folder() / name).string(); }

 private:
  Logbook logbook_;
};

void needApplication() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static int count = 1;
  static char name[] = "bench_report";
  static char* arguments[] = {name, nullptr};
  static QApplication application(count, arguments);
}

void preview(benchmark::State& state, int dives) {
  needApplication();
  const Printed printed(dives);
  for (auto _ : state) {
    const auto pages = printed.layOut();
    ReportPreview window(*pages, "Dive list", nullptr);
    window.show();
    benchmark::DoNotOptimize(window.grab());
  }
}
BENCHMARK_CAPTURE(preview, 500 dives, 500)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(preview, 9999 dives, kFullLogbook)->Unit(benchmark::kMillisecond)->UseRealTime();

void pdf(benchmark::State& state, int dives) {
  needApplication();
  const Printed printed(dives);
  for (auto _ : state)
    savePdf(*printed.layOut(), QString::fromStdString(printed.file("list.pdf")), "Dive list");
}
BENCHMARK_CAPTURE(pdf, 9999 dives, kFullLogbook)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace nautrel::bench
