// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/printing.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLocale>
#include <QPrinterInfo>
#include <QRadioButton>

#include "look/frame/window_place.h"

namespace nautrel {
namespace {

constexpr QMarginsF kMargins(15, 15, 15, 15);  // millimetres

constexpr QPageSize::PageSizeId kPapers[] = {QPageSize::A4,     QPageSize::A5,    QPageSize::A3,
                                             QPageSize::Letter, QPageSize::Legal, QPageSize::B5};

QPageSize usualPaper(const QString& printer) {
  const auto paper = QPrinterInfo::printerInfo(printer).defaultPageSize();
  if (paper.isValid()) return paper;
  const bool american = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

QList<QPageSize> papersOf(const QString& printer) {
  auto papers = QPrinterInfo::printerInfo(printer).supportedPageSizes();
  if (papers.isEmpty())
    for (const auto paper : kPapers) papers << QPageSize(paper);
  return papers;
}

class SetUpDialog : public QDialog {
 public:
  SetUpDialog(QWidget* parent, const PrinterSetUp& setUp) : QDialog(parent), page_(setUp.paper()) {
    setWindowTitle(QStringLiteral("Printer Setup"));
    auto* form = new QFormLayout(this);
    form->addRow(QStringLiteral("&Printer:"), &printer_);
    form->addRow(QStringLiteral("P&aper:"), &paper_);
    form->addRow(QStringLiteral("Orientation:"), orientation());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&printer_, &QComboBox::currentTextChanged, this, [this] { offerPapers(); });
    offerPrinters(setUp.printer());
    offerPapers();
  }

  QString printer() const { return printer_.currentData().toString(); }
  QPageLayout paper() const {
    auto page = page_;
    page.setPageSize(paper_.currentData().value<QPageSize>());
    page.setOrientation(landscape_.isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait);
    return page;
  }

 private:
  QWidget* orientation() {
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(&portrait_);
    row->addWidget(&landscape_);
    row->addStretch();
    (page_.orientation() == QPageLayout::Landscape ? landscape_ : portrait_).setChecked(true);
    return box;
  }

  void offerPrinters(const QString& chosen) {
    for (const auto& name : QPrinterInfo::availablePrinterNames()) printer_.addItem(name, name);
    printer_.addItem(QStringLiteral("PDF file"), QString());
    printer_.setCurrentIndex(qMax(printer_.findData(chosen), 0));
  }

  // The paper stays if the printer has it too.
  void offerPapers() {
    const auto wanted =
        paper_.count() > 0 ? paper_.currentData().value<QPageSize>() : page_.pageSize();
    paper_.clear();
    for (const auto& paper : papersOf(printer())) {
      paper_.addItem(paper.name(), QVariant::fromValue(paper));
      if (paper.isEquivalentTo(wanted)) paper_.setCurrentIndex(paper_.count() - 1);
    }
  }

  QPageLayout page_;
  QComboBox printer_;
  QComboBox paper_;
  QRadioButton portrait_{QStringLiteral("P&ortrait")};
  QRadioButton landscape_{QStringLiteral("&Landscape")};
};

}  // namespace

QString PrinterSetUp::printer() const {
  return toFile_ ? QString() : anyPrinter();
}

QString PrinterSetUp::anyPrinter() const {
  const auto present = QPrinterInfo::availablePrinterNames();
  if (present.contains(printer_)) return printer_;
  const auto usual = QPrinterInfo::defaultPrinterName();
  return usual.isEmpty() && !present.isEmpty() ? present.first() : usual;
}

QPageLayout PrinterSetUp::paper() const {
  if (paper_.isValid()) return paper_;
  return {usualPaper(printer()), QPageLayout::Portrait, kMargins, QPageLayout::Millimeter};
}

void PrinterSetUp::choose(const QString& printer, const QPageLayout& paper) {
  printer_ = printer;
  toFile_ = printer.isEmpty();
  paper_ = paper;
}

bool setUpPrinterDialog(QWidget* parent, PrinterSetUp& setUp) {
  SetUpDialog dialog(parent, setUp);
  frameDialog(dialog);
  if (dialog.exec() != QDialog::Accepted) return false;
  setUp.choose(dialog.printer(), dialog.paper());
  return true;
}

}  // namespace nautrel
