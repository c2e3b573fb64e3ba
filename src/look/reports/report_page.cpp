// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_page.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <vector>

#include "look/convert.h"
#include "look/reports/colour_glyphs.h"
#include "look/reports/template_picture.h"

namespace nautrel {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kBelowHead = 5 * 20;

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

/// A heading and what follows it, up to the next one.
struct Group {
  QTextBlock heading;
  double top = 0;
  double bottom = 0;
};

std::vector<Group> groupsOf(const QTextDocument& text) {
  std::vector<Group> groups;
  const auto& layout = *text.documentLayout();
  const auto* root = text.rootFrame();
  for (auto part = root->begin(); part != root->end(); ++part) {
    const auto* frame = part.currentFrame();
    const auto block = part.currentBlock();
    const QRectF place = frame != nullptr ? layout.frameBoundingRect(const_cast<QTextFrame*>(frame))
                                          : layout.blockBoundingRect(block);
    if (frame == nullptr && block.blockFormat().headingLevel() > 0)
      groups.push_back({block, place.top(), place.bottom()});
    else if (!groups.empty())
      groups.back().bottom = place.bottom();
  }
  return groups;
}

// A group that no page holds begins where there is room for its heading and some of it.
double leastOf(const Group& group, double page) {
  constexpr double kBeginning = 0.2;
  const double whole = group.bottom - group.top;
  return whole <= page ? whole : page * kBeginning;
}

void breakBefore(const QTextBlock& heading) {
  QTextCursor cursor(heading);
  auto format = heading.blockFormat();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  format.setTopMargin(0);
  cursor.setBlockFormat(format);
}

}  // namespace

QVariant PageText::loadResource(int type, const QUrl& name) {
  if (type != ImageResource) return {};
  try {
    return loadTemplatePicture(folder_, name);
  } catch (const ReportFault& fault) {
    fault_ = fault;
  }
  // Without any picture the text engine would look for the file itself.
  QImage none(1, 1, QImage::Format_ARGB32);
  none.fill(Qt::transparent);
  return none;
}

ReportPage::ReportPage(PageReport report, const QPageLayout& paper)
    : ReportPages(paper),
      frame_(static_cast<ReportFrame&&>(report), body()),
      room_(frame_.room(0).adjusted(0, kBelowHead, 0, 0)),
      text_(toQt(report.folder)) {
  text_.documentLayout()->setPaintDevice(&twipsDevice());
  text_.setDocumentMargin(0);
  text_.setTextWidth(room_.width());
  text_.setHtml(toQt(report.html));
  paintColourGlyphsOf(text_);
  keepGroups();
  text_.setPageSize(room_.size());
  if (text_.fault()) throw *text_.fault();
}

void ReportPage::keepGroups() {
  const auto groups = groupsOf(text_);
  double pageTop = 0;
  for (const auto& group : groups) {
    const double bottom = pageTop + room_.height();
    if (group.top > pageTop && group.top + leastOf(group, room_.height()) > bottom) {
      breakBefore(group.heading);
      pageTop = group.top;
    }
    while (group.bottom > pageTop + room_.height()) pageTop += room_.height();
  }
}

// The sheet is white whatever the desktop's theme.
void ReportPage::paint(QPainter& painter, int page) const {
  frame_.paint(painter, page, count());
  const QRectF part(0, page * room_.height(), room_.width(), room_.height());
  painter.save();
  painter.translate(room_.topLeft() - part.topLeft());
  painter.setClipRect(part);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = part;
  text_.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace nautrel
