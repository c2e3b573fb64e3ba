// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_frame.h"

#include <QFontMetricsF>

#include "look/convert.h"
#include "look/reports/colour_glyphs.h"
#include "look/reports/report_style.h"

namespace nautrel {
namespace {

// In points.
constexpr double kTitleSize = 20;
constexpr double kSubtitleSize = 11;
constexpr double kRunningSize = 10;
constexpr double kFootSize = 8;
constexpr double kSmallestTitle = 12;
constexpr double kGap = 14;
constexpr double kAboveRule = 3;
constexpr double kBelowRule = 6;
constexpr double kAboveFoot = 8;

double widthOf(const QString& text, const QFont& font) {
  return QFontMetricsF(font).horizontalAdvance(text);
}

QFont titleFont(double points) {
  return paperFont(points, QFont::Bold);
}

double lineHeight(double points) {
  return QFontMetricsF(paperFont(points)).height();
}

struct Words {
  QString text;
  QFont font;
  QColor color;
};

void draw(QPainter& painter, const QPointF& at, const Words& words) {
  painter.setFont(words.font);
  painter.setPen(words.color);
  drawPaperText(painter, at, words.text);
}

/// Words at both ends of a line, cut where there is no room for them.
void drawEnds(QPainter& painter, const QRectF& across, double baseline, Words left,
              Words right = {}) {
  const auto cut = [](Words& words, double width) {
    words.text = QFontMetricsF(words.font).elidedText(words.text, Qt::ElideRight, width);
    return widthOf(words.text, words.font);
  };
  const double width = cut(right, across.width() / 2);
  cut(left, across.width() - (width > 0 ? width + kGap * kTwipsPerPoint : 0));
  draw(painter, QPointF(across.left(), baseline), left);
  draw(painter, QPointF(across.right() - width, baseline), right);
}

}  // namespace

PageFrame::PageFrame(ReportFrame texts, const QRectF& body)
    : texts_(std::move(texts)),
      title_(toQt(texts_.title).simplified()),
      subtitle_(toQt(texts_.subtitle).simplified()),
      body_(body),
      first_(headOf(kTitleSize, kSubtitleSize, true)),
      running_(headOf(kRunningSize, kRunningSize, false)) {}

// A long title first gets the line for itself, and then smaller.
PageFrame::Head PageFrame::headOf(double titleSize, double subtitleSize, bool mayGrow) const {
  Head head{titleSize, subtitleSize, false, 0};
  const double width = widthOf(title_, titleFont(titleSize));
  const double both = width + kGap * kTwipsPerPoint + widthOf(subtitle_, paperFont(subtitleSize));
  head.below = mayGrow && !subtitle_.isEmpty() && both > body_.width();
  if (mayGrow && width > body_.width())
    head.titleSize = qMax(titleSize * body_.width() / width, kSmallestTitle);
  head.height = lineHeight(head.titleSize) + (head.below ? lineHeight(subtitleSize) : 0) +
                kAboveRule * kTwipsPerPoint;
  return head;
}

QRectF PageFrame::room(int page) const {
  const double above = hasHead() ? head(page).height + kBelowRule * kTwipsPerPoint : 0;
  const double below = lineHeight(kFootSize) + kAboveFoot * kTwipsPerPoint;
  return body_.adjusted(0, above, 0, -below);
}

void PageFrame::paint(QPainter& painter, int page, int pages) const {
  if (hasHead()) paintHead(painter, page);
  if (texts_.footer) paintFoot(painter, toQt(texts_.footer(page + 1, pages)));
}

void PageFrame::paintHead(QPainter& painter, int page) const {
  const Head& head = this->head(page);
  const QFont font = titleFont(head.titleSize);
  const Words title{title_, font, page == 0 ? paper::kAccent : paper::kInk};
  const Words subtitle{subtitle_, paperFont(head.subtitleSize), paper::kQuiet};
  const double baseline = body_.top() + QFontMetricsF(font).ascent();
  drawEnds(painter, body_, baseline, title, head.below ? Words{} : subtitle);
  if (head.below) drawEnds(painter, body_, baseline + lineHeight(head.subtitleSize), subtitle);
  drawRule(painter, body_, body_.top() + head.height, page == 0 ? 1.5 : 0.75);
}

void PageFrame::paintFoot(QPainter& painter, const QString& text) const {
  const QFont font = paperFont(kFootSize);
  const QFontMetricsF metrics(font);
  const double baseline = body_.bottom() - metrics.descent();
  drawRule(painter, body_, baseline - metrics.height() * 1.2, 0.5);
  drawEnds(painter, body_, baseline, {text.section('|', 0, 0).simplified(), font, paper::kQuiet},
           {text.section('|', 1).simplified(), font, paper::kQuiet});
}

}  // namespace nautrel
