#pragma once

#include <QPageLayout>
#include <QString>

class QWidget;

namespace nautrel {

/// The printer and the paper for all that is printed, as chosen by the user or given by the system;
/// a choice is kept for the run of the program.
class PrinterSetUp {
 public:
  /// The name of the printer that takes what is printed now; empty if the system has none.
  QString printer() const;
  /// Paper, orientation and margins.
  QPageLayout paper() const;
  void choose(const QString& printer, const QPageLayout& paper);

 private:
  QString printer_;
  QPageLayout paper_;
};

/// Lets the user choose the printer and its paper. False if he cancels.
bool setUpPrinterDialog(QWidget* parent, PrinterSetUp& setUp);

}  // namespace nautrel
