// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/pages_view.h"

#include <QPaintEvent>
#include <QPainter>

#include "look/reports/report_pages.h"

namespace nautrel {
namespace {

constexpr int kGap = 16;
constexpr double kTwipsPerInch = 1440;

}  // namespace

PagesView::PagesView(const ReportPages& pages, QWidget* parent) : QWidget(parent), pages_(pages) {
  setAccessibleName(QStringLiteral("Pages"));
  setZoom(1);
}

double PagesView::pixelsPerTwip() const {
  return zoom_ * logicalDpiX() / kTwipsPerInch;
}

QSizeF PagesView::sheet() const {
  return pages_.sheet().size() * pixelsPerTwip();
}

void PagesView::setZoom(double zoom) {
  zoom_ = zoom;
  resize(qRound(sheet().width()) + 2 * kGap, topOf(pages_.count()) + kGap);
  update();
}

void PagesView::fit(const QSize& room) {
  const auto paper = pages_.sheet().size() * (logicalDpiX() / kTwipsPerInch);
  setZoom(qMax(0.05, qMin((room.width() - 2 * kGap) / paper.width(),
                          (room.height() - 2 * kGap) / paper.height())));
}

int PagesView::topOf(int page) const {
  return qRound(page * (sheet().height() + kGap));
}

int PagesView::pageAt(int y) const {
  return qBound(0, static_cast<int>(y / (sheet().height() + kGap)), pages_.count() - 1);
}

QString PagesView::spokenValue() const {
  const auto seen = visibleRegion().boundingRect();
  return QStringLiteral("Page %1 of %2")
      .arg(pageAt(seen.top() + seen.height() / 3) + 1)
      .arg(pages_.count());
}

void PagesView::paintEvent(QPaintEvent* event) {
  edge([&] { paintSheets(event->rect()); });
}

void PagesView::paintSheets(const QRect& shown) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const int last = pageAt(shown.bottom());
  for (int page = pageAt(shown.top() - kGap); page <= last; ++page) paintSheet(painter, page);
}

void PagesView::paintSheet(QPainter& painter, int page) const {
  const QRectF sheet(QPointF(kGap, topOf(page) + kGap), this->sheet());
  painter.fillRect(sheet.translated(2, 2), QColor(0, 0, 0, 60));
  painter.fillRect(sheet, Qt::white);
  painter.save();
  painter.setClipRect(sheet);
  painter.translate(sheet.topLeft());
  painter.scale(pixelsPerTwip(), pixelsPerTwip());
  pages_.paint(painter, page);
  painter.restore();
}

}  // namespace nautrel
