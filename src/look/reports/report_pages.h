// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPageLayout>
#include <memory>

#include "printing/report_document.h"

class QPagedPaintDevice;
class QPainter;

namespace nautrel {

/// A report laid out on paper. Nothing of it depends on the device that shows it: all measures are
/// twips.
class ReportPages {
 public:
  explicit ReportPages(const QPageLayout& paper) : paper_(paper) {}
  virtual ~ReportPages() = default;

  const QPageLayout& paper() const { return paper_; }
  /// The whole sheet, and what its margins leave.
  QRectF sheet() const;
  QRectF body() const;

  virtual int count() const = 0;
  /// Paints a page, counted from 0, on a painter whose unit is a twip, from the sheet's corner on.
  virtual void paint(QPainter& painter, int page) const = 0;

 private:
  QPageLayout paper_;
};

/// Whether a list may turn the paper to landscape.
enum class Turning { AsNeeded, Never };

/// Lays a report out on the paper chosen. Raises ReportFault for what cannot be laid out.
std::unique_ptr<ReportPages> layOut(ReportDocument report, QPageLayout paper,
                                    Turning turning = Turning::AsNeeded);

/// Prints the pages from `first` to `last`, counted from 0. False if the device takes none.
bool printPages(const ReportPages& pages, QPagedPaintDevice& device, int first, int last);

/// Writes all pages into a file, which stays as it was if that fails. Raises ReportFault.
void savePdf(const ReportPages& pages, const QString& path, const QString& title);

}  // namespace nautrel
