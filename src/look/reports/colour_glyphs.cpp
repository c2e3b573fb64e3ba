// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/colour_glyphs.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextObjectInterface>
#include <algorithm>
#include <string_view>

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
PaperRun asPicture(const QGlyphRun& run) {
  constexpr double kScale = 0.5;
  const QRectF place = run.boundingRect().adjusted(-20, -20, 20, 20);
  QImage image((place.size() * kScale).toSize().expandedTo({1, 1}), QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter glyphs(&image);
  glyphs.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  glyphs.scale(kScale, kScale);
  glyphs.drawGlyphRun(-place.topLeft(), run);
  return {run, image, place};
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

std::vector<PaperRun> runsOf(const QString& text, const QFont& font) {
  const bool plain = !mayHaveColourGlyphs(text);
  std::vector<PaperRun> runs;
  for (const auto& run : shapedLine(text, font))
    runs.push_back(plain || !hasColours(run.rawFont()) ? PaperRun{run, {}, {}} : asPicture(run));
  return runs;
}

void paint(QPainter& painter, const QPointF& at, const std::vector<PaperRun>& runs) {
  for (const auto& run : runs)
    if (run.picture.isNull())
      painter.drawGlyphRun(at, run.glyphs);
    else
      painter.drawImage(run.place.translated(at), run.picture);
}

QFont twipsFont(const QTextFormat& format) {
  QFont font = format.toCharFormat().font();
  if (font.pixelSize() < 0) font.setPixelSize(qRound(font.pointSizeF() * kTwipsPerPoint));
  return font;
}

constexpr int kColourGlyph = QTextFormat::UserObject;
constexpr int kCharacter = QTextFormat::UserProperty;

/// One character of a document as an object in its line.
class ColourGlyph : public QObject, public QTextObjectInterface {
 public:
  using QObject::QObject;

  QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override {
    const QFontMetricsF metrics(twipsFont(format));
    return {metrics.horizontalAdvance(format.stringProperty(kCharacter)), metrics.ascent()};
  }
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                  const QTextFormat& format) override {
    painter->setFont(twipsFont(format));
    painter->setPen(format.foreground().color());
    drawPaperText(*painter, place.bottomLeft(), format.stringProperty(kCharacter));
  }
  void* qt_metacast(const char* name) override {
    const bool asked = std::string_view(name) == qobject_interface_iid<QTextObjectInterface*>();
    return asked ? static_cast<QTextObjectInterface*>(this) : QObject::qt_metacast(name);
  }
};

/// Where the characters in colour stand in the document.
std::vector<QTextCursor> colourGlyphsIn(const QTextBlock& block) {
  std::vector<QTextCursor> found;
  const QString text = block.text();
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype start = 0, end = 0; (end = finder.toNextBoundary()) != -1; start = end) {
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + static_cast<int>(start));
    cursor.setPosition(block.position() + static_cast<int>(end), QTextCursor::KeepAnchor);
    const auto runs = runsOf(text.sliced(start, end - start), twipsFont(cursor.charFormat()));
    if (std::ranges::any_of(runs, [](const auto& run) { return !run.picture.isNull(); }))
      found.push_back(cursor);
  }
  return found;
}

}  // namespace

void drawPaperText(QPainter& painter, const QPointF& at, const QString& text) {
  if (leavesColoursOut(painter) && mayHaveColourGlyphs(text))
    paint(painter, at, runsOf(text, painter.font()));
  else
    painter.drawText(at, text);
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
  paint(painter, at, shaped(text));
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

const std::vector<PaperRun>& PaperLines::shaped(const QString& text) const {
  constexpr qsizetype kMostKnown = 20'000;
  if (const auto found = known_.constFind(text); found != known_.cend()) return *found;
  if (known_.size() >= kMostKnown) known_.clear();
  return *known_.insert(text, runsOf(text, font_));
}

void paintColourGlyphsOf(QTextDocument& document) {
  document.documentLayout()->registerHandler(kColourGlyph, new ColourGlyph(&document));
  for (auto block = document.begin(); block.isValid(); block = block.next()) {
    if (!mayHaveColourGlyphs(block.text())) continue;
    for (auto& cursor : colourGlyphsIn(block)) {
      auto format = cursor.charFormat();
      format.setObjectType(kColourGlyph);
      format.setProperty(kCharacter, cursor.selectedText());
      cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
    }
  }
}

}  // namespace nautrel
