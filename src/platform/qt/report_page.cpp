#include "platform/qt/report_page.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QPainter>

#include "platform/qt/convert.h"

namespace nautrel {
namespace {

constexpr int kTwipsPerInch = 1440;

/// Nothing is painted on it: it tells the text engine that its unit is a twip.
class TwipsDevice : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return kTwipsPerInch;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      case PdmDepth:
        return 32;
      default:
        return 0;
    }
  }
};

QPaintDevice& twipsDevice() {
  static TwipsDevice device;
  return device;
}

}  // namespace

ReportPage::ReportPage(const PageReport& report, const QPageLayout& paper) : ReportPages(paper) {
  text_.documentLayout()->setPaintDevice(&twipsDevice());
  text_.setDocumentMargin(0);
  text_.setPageSize(body().size());
  text_.setHtml(toQt(report.html));
}

// The sheet is white whatever the desktop's theme.
void ReportPage::paint(QPainter& painter, int page) const {
  const QRectF part(0, page * body().height(), body().width(), body().height());
  painter.save();
  painter.translate(body().topLeft() - part.topLeft());
  painter.setClipRect(part);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = part;
  text_.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace nautrel
