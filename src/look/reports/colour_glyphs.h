// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <vector>

class QPainter;
class QTextDocument;

namespace nautrel {

/// Paper and PDF leave out what fonts have as pictures in colour, such as emoji, and a font that
/// came upon one of them measures wrongly for the rest of the run: these paint it as a picture.

/// A part of a line of text, from the line's baseline on.
struct PaperRun {
  QGlyphRun glyphs;
  QImage picture;  // of glyphs in colour
  QRectF place;    // of the picture
};

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
  const std::vector<PaperRun>& shaped(const QString& text) const;

  QFont font_;
  QRawFont raw_;
  QList<quint32> glyphs_;  // of the characters below 128
  QList<QPointF> advances_;
  mutable QHash<QString, std::vector<PaperRun>> known_;
};

/// Has a document, whose unit is a twip and which is not laid out yet, paint such characters so.
void paintColourGlyphsOf(QTextDocument& document);

}  // namespace nautrel
