// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_pages.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "look/convert.h"
#include "look/reports/report_list.h"
#include "look/reports/report_page.h"
#include "look/reports/report_style.h"
#include "platform/desktop.h"

namespace nautrel {
namespace {

constexpr int kTwipsPerInch = 1440;

QRectF twips(const QRectF& points) {
  return {points.topLeft() * kTwipsPerPoint, points.size() * kTwipsPerPoint};
}

}  // namespace

QRectF ReportPages::sheet() const {
  return twips(paper_.fullRect(QPageLayout::Point));
}

QRectF ReportPages::body() const {
  return twips(paper_.paintRect(QPageLayout::Point));
}

std::unique_ptr<ReportPages> layOut(ReportDocument report, QPageLayout paper, Turning turning) {
  auto* list = std::get_if<ListReport>(&report);
  if (list == nullptr)
    return std::make_unique<ReportPage>(std::get<PageReport>(std::move(report)), paper);
  ListCells cells(list->cells, list->layout);
  if (turning == Turning::AsNeeded) paper = turnedFor(list->layout, cells.needs(), paper);
  return std::make_unique<ReportList>(std::move(*list), std::move(list->layout), std::move(cells),
                                      paper);
}

bool printPages(const ReportPages& pages, QPagedPaintDevice& device, int first, int last) {
  device.setPageLayout(pages.paper());
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const auto printable = device.pageLayout().paintRect(QPageLayout::Point);
  const double scale = static_cast<double>(device.logicalDpiX()) / kTwipsPerInch;
  for (int page = first; page <= last; ++page) {
    if (page > first && !device.newPage()) return false;
    painter.save();
    painter.scale(scale, scale);
    painter.translate(-printable.topLeft() * kTwipsPerPoint);
    pages.paint(painter, page);
    painter.restore();
  }
  return painter.end();
}

// A painter says nothing about a full disk, so the file is asked. After a write that was cut short
// it knows the reason only from the next one.
void savePdf(const ReportPages& pages, const QString& path, const QString& title) {
  QSaveFile file(path);
  file.setDirectWriteFallback(true);
  bool written = file.open(QIODevice::WriteOnly);
  if (written) {
    QPdfWriter writer(&file);
    writer.setTitle(title);
    writer.setCreator(QString::fromUtf8(kApplicationTitle));
    writer.setResolution(kTwipsPerInch);
    written = printPages(pages, writer, 0, pages.count() - 1);
  }
  written = written && (file.flush() || file.flush()) && file.error() == QFileDevice::NoError;
  auto reason = file.errorString();
  if (written && file.commit()) return;
  if (written) reason = file.errorString();
  file.cancelWriting();
  throw ReportFault{"The PDF could not be saved: " + fromQt(reason)};
}

}  // namespace nautrel
