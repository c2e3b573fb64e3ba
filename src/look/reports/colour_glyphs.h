#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <QTextBlock>
#include <vector>

class QPainter;
class QTextDocument;

namespace nautrel {

/// Paper and PDF leave out what fonts have as pictures in colour, such as emoji: these paint it.

/// Paints one line of text with its baseline at a point.
void drawPaperText(QPainter& painter, const QPointF& at, const QString& text);

/// Paints lines of one font as drawPaperText() does. For PDF a text is shaped once and no more:
/// countries, places and buddies come back from dive to dive.
class PaperLines {
 public:
  explicit PaperLines(const QFont& font);

  void draw(QPainter& painter, const QPointF& at, const QString& text) const;
  /// A text of digits and letters without accents, which needs no shaping.
  void drawFigure(QPainter& painter, const QPointF& at, const QString& text) const;

 private:
  struct Run {
    QGlyphRun glyphs;  // from the baseline on
    bool colour = false;
  };

  const std::vector<Run>& shaped(const QString& text) const;

  QFont font_;
  QRawFont raw_;
  QList<quint32> glyphs_;  // of the characters below 128
  QList<QPointF> advances_;
  mutable QHash<QString, std::vector<Run>> known_;
};

/// The parts of a document that may have such pictures.
std::vector<QTextBlock> blocksWithColourGlyphs(const QTextDocument& document);

/// Adds to a document of twips, painted from the origin on, what the painter left out of a block.
void addColourGlyphs(QPainter& painter, const QTextBlock& block);

}  // namespace nautrel
