// SPDX-License-Identifier: GPL-2.0-or-later
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>

#include "look/convert.h"
#include "look/reports/printing.h"
#include "look/reports/report_pages.h"
#include "look/reports/report_preview.h"
#include "look/system/qt_desktop.h"
#include "printing/make_report.h"

namespace nautrel {
namespace {

constexpr int kExclamation = 48;

std::unique_ptr<QPrinter> printerNamed(const QString& name, const QPageLayout& paper) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPrinterName(name);
  printer->setPageLayout(paper);
  return printer;
}

void printOn(QPrinter& printer, const ReportPages& pages, const QString& title) {
  const int first = qMax(printer.fromPage(), 1);
  const int last = printer.toPage() == 0 ? pages.count() : qMin(printer.toPage(), pages.count());
  printer.setDocName(title);
  if (!printPages(pages, printer, first - 1, last - 1))
    throw ReportFault{"The printer " + fromQt(printer.printerName()) + " takes no pages."};
}

/// A name for the report's file that every system takes.
std::string pdfName(const ReportDocument& report, const QString& otherwise) {
  static const QRegularExpression unfit(QStringLiteral(R"([\x00-\x1F<>:"/\\|?*]+)"));
  const auto& title = std::visit([](const ReportFrame& frame) { return frame.title; }, report);
  const QString name = toQt(title).replace(unfit, QStringLiteral(" ")).simplified();
  return fromQt(name.isEmpty() ? otherwise : name) + ".pdf";
}

/// A report on its way to paper or into a file.
class Printout {
 public:
  Printout(Desktop& desktop, const PrinterSetUp& setUp, ReportDocument report, QString title)
      : desktop_(desktop),
        setUp_(setUp),
        report_(std::move(report)),
        title_(std::move(title)),
        pages_(layOut(report_, setUp.paper())) {}

  const ReportPages& pages() const { return *pages_; }

  /// As the set-up says.
  void print() {
    const auto name = setUp_.printer();
    if (name.isEmpty()) return save();
    printOn(*printerNamed(name, pages_->paper()), *pages_, title_);
  }

  /// On the printer, the paper and the pages that the user chooses; without any printer into a
  /// file.
  void printAsked(QWidget& parent) {
    const auto name = setUp_.anyPrinter();
    if (name.isEmpty()) return save();
    const auto printer = printerNamed(name, pages_->paper());
    const auto offered = printer->pageLayout();
    QPrintDialog dialog(printer.get(), &parent);
    // Its own way into a file would pass the door; the preview has "Save as PDF" for that.
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pages_->count());
    if (dialog.exec() != QDialog::Accepted) return;
    if (printer->pageLayout().isEquivalentTo(offered))
      printOn(*printer, *pages_, title_);
    else
      printOn(*printer, *layOut(report_, printer->pageLayout(), Turning::Never), title_);
  }

  void save() {
    const auto path = desktop_.saveFile({.title = "Save as PDF",
                                         .filter = "PDF|*.pdf",
                                         .fileName = pdfName(report_, title_),
                                         .flags = 2,
                                         .ending = ".pdf"});
    if (path) savePdf(*pages_, toQt(*path), title_);
  }

 private:
  Desktop& desktop_;
  const PrinterSetUp& setUp_;
  ReportDocument report_;
  QString title_;
  std::unique_ptr<ReportPages> pages_;
};

}  // namespace

void QtDesktop::telling(const std::function<void()>& step) {
  atEdge([&] {
    try {
      step();
    } catch (const ReportFault& fault) {
      showMessage(fault.text, kExclamation, kApplicationTitle);
    }
  });
}

void QtDesktop::run(const ReportJob& job) {
  telling([&] {
    const auto title = toQt(job.windowTitle.empty() ? kApplicationTitle : job.windowTitle);
    Printout printout(*this, printer_, makeReport(job, currentTime(), currentLocale()), title);
    if (job.destination == ReportDestination::Printer) return printout.print();
    ReportPreview window(printout.pages(), title, parentWindow());
    window.print = [&] { telling([&] { printout.printAsked(window); }); };
    window.save = [&] { telling([&] { printout.save(); }); };
    window.setEdge([this](const auto& step) { atEdge(step); });
    window.exec();
  });
}

void QtDesktop::print(const std::string& text) {
  telling([&] {
    const auto html = QStringLiteral("<pre>%1</pre>").arg(toQt(text).toHtmlEscaped());
    Printout(*this, printer_, PageReport{{}, fromQt(html)}, QString::fromUtf8(kApplicationTitle))
        .print();
  });
}

}  // namespace nautrel
