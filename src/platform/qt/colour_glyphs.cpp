#include "platform/qt/colour_glyphs.h"

#include <QAbstractTextDocumentLayout>
#include <QGlyphRun>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "platform/qt/report_style.h"

namespace nautrel {
namespace {

bool hasColours(const QRawFont& font) {
  return std::ranges::any_of(std::initializer_list<const char*>{"CBDT", "COLR", "sbix", "SVG "},
                             [&](const char* table) { return !font.fontTable(table).isEmpty(); });
}

bool leavesColoursOut(const QPainter& painter) {
  return painter.paintEngine()->type() == QPaintEngine::Pdf;
}

// At half a twip's resolution a line of text is still finer than printers are.
void paintAsImage(QPainter& painter, const QPointF& origin, const QGlyphRun& run) {
  constexpr double kScale = 0.5;
  const QRectF place = run.boundingRect().adjusted(-20, -20, 20, 20);
  QImage image((place.size() * kScale).toSize().expandedTo({1, 1}), QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter glyphs(&image);
  glyphs.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  glyphs.scale(kScale, kScale);
  glyphs.drawGlyphRun(-place.topLeft(), run);
  glyphs.end();
  painter.drawImage(place.translated(origin), image);
}

bool mayHaveColourGlyphs(QStringView text) {
  return std::ranges::any_of(text, [](QChar character) {
    const auto code = character.unicode();
    return character.isHighSurrogate() || (code >= 0x2100 && code < 0x2C00);
  });
}

void paintColourGlyphs(QPainter& painter, const QPointF& at, const QString& text,
                       const QFont& font) {
  if (!leavesColoursOut(painter) || !mayHaveColourGlyphs(text)) return;
  QTextLayout layout(text, font);
  layout.beginLayout();
  const auto line = layout.createLine();
  layout.endLayout();
  for (const auto& run : layout.glyphRuns())
    if (hasColours(run.rawFont())) paintAsImage(painter, at - QPointF(0, line.ascent()), run);
}

QFont twipsFont(const QTextFragment& fragment) {
  QFont font = fragment.charFormat().font();
  if (font.pixelSize() < 0) font.setPixelSize(qRound(font.pointSizeF() * kTwipsPerPoint));
  return font;
}

void addColourGlyphs(QPainter& painter, const QTextBlock& block, const QTextFragment& fragment,
                     const QPointF& origin) {
  const QString text = fragment.text();
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype start = 0, end = 0; (end = finder.toNextBoundary()) != -1; start = end) {
    const QString character = text.sliced(start, end - start);
    if (!mayHaveColourGlyphs(character)) continue;
    const int place = fragment.position() - block.position() + static_cast<int>(start);
    const auto line = block.layout()->lineForTextPosition(place);
    const double x =
        std::min(line.cursorToX(place), line.cursorToX(place + static_cast<int>(character.size())));
    paintColourGlyphs(painter, origin + QPointF(x, line.y() + line.ascent()), character,
                      twipsFont(fragment));
  }
}

}  // namespace

void drawPaperText(QPainter& painter, const QPointF& at, const QString& text) {
  painter.drawText(at, text);
  paintColourGlyphs(painter, at, text, painter.font());
}

std::vector<QTextBlock> blocksWithColourGlyphs(const QTextDocument& document) {
  std::vector<QTextBlock> blocks;
  for (auto block = document.begin(); block.isValid(); block = block.next())
    if (mayHaveColourGlyphs(block.text())) blocks.push_back(block);
  return blocks;
}

void addColourGlyphs(QPainter& painter, const QTextBlock& block) {
  if (!leavesColoursOut(painter)) return;
  const QRectF place = block.document()->documentLayout()->blockBoundingRect(block);
  if (!place.intersects(painter.clipBoundingRect())) return;
  for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
    addColourGlyphs(painter, block, fragment.fragment(), place.topLeft());
}

}  // namespace nautrel
