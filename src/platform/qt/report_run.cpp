#include <QPrintDialog>
#include <QPrinter>

#include "platform/qt/convert.h"
#include "platform/qt/printing.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/report_pages.h"
#include "platform/qt/report_preview.h"

namespace nautrel {
namespace {

constexpr int kExclamation = 48;

/// Raises ReportFault if the system has no printer.
std::unique_ptr<QPrinter> printerOf(const PrinterSetUp& setUp) {
  const auto name = setUp.printer();
  if (name.isEmpty())
    throw ReportFault{"There is no printer. Please set one up in your system and try again."};
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPrinterName(name);
  return printer;
}

void printOn(QPrinter& printer, const ReportPages& pages, const QString& title) {
  const int first = qMax(printer.fromPage(), 1);
  const int last = printer.toPage() == 0 ? pages.count() : qMin(printer.toPage(), pages.count());
  printer.setDocName(title);
  if (!printPages(pages, printer, first - 1, last - 1))
    throw ReportFault{"The printer " + fromQt(printer.printerName()) + " takes no pages."};
}

void printAsked(const PrinterSetUp& setUp, const ReportPages& pages, ReportPreview& preview) {
  const auto printer = printerOf(setUp);
  QPrintDialog dialog(printer.get(), &preview);
  // Its own way into a file would pass the door; the preview has "Save as PDF" for that.
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialog.setMinMax(1, pages.count());
  if (dialog.exec() == QDialog::Accepted) printOn(*printer, pages, preview.windowTitle());
}

void saveAsked(Desktop& desktop, const ReportPages& pages, const QString& title) {
  const auto path = desktop.saveFile({.title = "Save as PDF",
                                      .filter = "PDF|*.pdf",
                                      .fileName = fromQt(title) + ".pdf",
                                      .flags = 2,
                                      .ending = ".pdf"});
  if (path && !savePdf(pages, toQt(*path), title))
    throw ReportFault{"The file " + *path + " cannot be written."};
}

}  // namespace

void QtDesktop::telling(const std::function<void()>& step) {
  try {
    step();
  } catch (const ReportFault& fault) {
    showMessage(fault.text, kExclamation, kApplicationTitle);
  }
}

void QtDesktop::preview(const ReportPages& pages, const QString& title) {
  ReportPreview window(pages, title, parentWindow());
  window.print = [&] { telling([&] { printAsked(printer_, pages, window); }); };
  window.save = [&] { telling([&] { saveAsked(*this, pages, title); }); };
  window.exec();
}

void QtDesktop::run(const ReportJob& job) {
  telling([&] {
    const auto title = toQt(job.windowTitle.empty() ? kApplicationTitle : job.windowTitle);
    const bool toScreen = job.destination == ReportDestination::Preview;
    const auto printer = toScreen ? nullptr : printerOf(printer_);
    const auto pages = layOut(makeReport(job, currentTime(), currentLocale()), printer_.paper());
    if (toScreen)
      preview(*pages, title);
    else
      printOn(*printer, *pages, title);
  });
}

void QtDesktop::print(const std::string& text) {
  telling([&] {
    const auto printer = printerOf(printer_);
    const auto html = QStringLiteral("<pre>%1</pre>").arg(toQt(text).toHtmlEscaped());
    printOn(*printer, *layOut(PageReport{{}, fromQt(html)}, printer_.paper()),
            QString::fromUtf8(kApplicationTitle));
  });
}

}  // namespace nautrel
