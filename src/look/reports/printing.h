// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPageLayout>
#include <QString>

class QWidget;

namespace nautrel {

/// The printer and the paper for all that is printed, as chosen by the user or given by the system;
/// a choice is kept for the run of the program.
class PrinterSetUp {
 public:
  /// The name of the printer that takes what is printed now; empty if it goes into a PDF file, by
  /// choice or because the system has no printer.
  QString printer() const;
  /// A printer to be offered whatever was chosen; empty if the system has none.
  QString anyPrinter() const;
  /// Paper, orientation and margins.
  QPageLayout paper() const;
  /// Without the name of a printer, a PDF file.
  void choose(const QString& printer, const QPageLayout& paper);

 private:
  QString printer_;
  bool toFile_ = false;
  QPageLayout paper_;
};

/// Lets the user choose the printer and its paper. False if he cancels.
bool setUpPrinterDialog(QWidget* parent, PrinterSetUp& setUp);

}  // namespace nautrel
