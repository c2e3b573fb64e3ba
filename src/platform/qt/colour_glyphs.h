#pragma once

#include <QPointF>
#include <QString>
#include <QTextBlock>
#include <vector>

class QPainter;
class QTextDocument;

namespace nautrel {

/// Paper and PDF leave out what fonts have as pictures in colour, such as emoji: these paint it.

/// Paints one line of text with its baseline at a point.
void drawPaperText(QPainter& painter, const QPointF& at, const QString& text);

/// The parts of a document that may have such pictures.
std::vector<QTextBlock> blocksWithColourGlyphs(const QTextDocument& document);

/// Adds to a document of twips, painted from the origin on, what the painter left out of a block.
void addColourGlyphs(QPainter& painter, const QTextBlock& block);

}  // namespace nautrel
