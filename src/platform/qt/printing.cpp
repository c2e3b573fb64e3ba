#include "platform/qt/printing.h"

#include <QPageSetupDialog>
#include <QPrinter>

#include "platform/qt/qt_desktop.h"

namespace nautrel {
namespace {

QPrinter& printer() {
  static QPrinter chosen(QPrinter::HighResolution);
  return chosen;
}

}  // namespace

bool setUpPrinterDialog(QWidget* parent) {
  QPageSetupDialog dialog(&printer(), parent);
  return dialog.exec() == QDialog::Accepted;
}

void QtDesktop::run(const ReportJob&) {}
void QtDesktop::print(const std::string&) {}

}  // namespace nautrel
