#include "look/reports/colour_glyphs.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "look/reports/report_style.h"

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

/// The glyphs of a line of text, from its baseline on.
QList<QGlyphRun> shapedLine(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  const auto line = layout.createLine();
  layout.endLayout();
  auto runs = layout.glyphRuns();
  for (auto& run : runs) {
    auto places = run.positions();
    for (auto& place : places) place.ry() -= line.ascent();
    run.setPositions(places);
    run.setBoundingRect(run.boundingRect().translated(0, -line.ascent()));
  }
  return runs;
}

void paintColourGlyphs(QPainter& painter, const QPointF& at, const QString& text,
                       const QFont& font) {
  if (!leavesColoursOut(painter) || !mayHaveColourGlyphs(text)) return;
  for (const auto& run : shapedLine(text, font))
    if (hasColours(run.rawFont())) paintAsImage(painter, at, run);
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

PaperLines::PaperLines(const QFont& font) : font_(font), raw_(QRawFont::fromFont(font)) {
  constexpr int kPlain = 128;
  QString characters;
  for (int code = 0; code < kPlain; ++code) characters += QChar(code);
  glyphs_ = raw_.glyphIndexesForString(characters);
  advances_ = raw_.advancesForGlyphIndexes(glyphs_);
}

void PaperLines::draw(QPainter& painter, const QPointF& at, const QString& text) const {
  if (!leavesColoursOut(painter)) return painter.drawText(at, text);
  for (const auto& run : shaped(text))
    if (run.colour)
      paintAsImage(painter, at, run.glyphs);
    else
      painter.drawGlyphRun(at, run.glyphs);
}

void PaperLines::drawFigure(QPainter& painter, const QPointF& at, const QString& text) const {
  const bool plain = std::ranges::all_of(
      text, [this](QChar character) { return character.unicode() < glyphs_.size(); });
  if (!plain || !leavesColoursOut(painter)) return draw(painter, at, text);
  QList<quint32> glyphs;
  QList<QPointF> places;
  QPointF place;
  for (const QChar character : text) {
    glyphs << glyphs_[character.unicode()];
    places << place;
    place += advances_[character.unicode()];
  }
  QGlyphRun run;
  run.setRawFont(raw_);
  run.setGlyphIndexes(glyphs);
  run.setPositions(places);
  painter.drawGlyphRun(at, run);
}

const std::vector<PaperLines::Run>& PaperLines::shaped(const QString& text) const {
  constexpr qsizetype kMostKnown = 20'000;
  if (const auto found = known_.constFind(text); found != known_.cend()) return *found;
  if (known_.size() >= kMostKnown) known_.clear();
  std::vector<Run> runs;
  for (const auto& run : shapedLine(text, font_))
    runs.push_back({run, mayHaveColourGlyphs(text) && hasColours(run.rawFont())});
  return *known_.insert(text, std::move(runs));
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
