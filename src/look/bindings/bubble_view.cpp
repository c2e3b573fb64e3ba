// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/bubble_view.h"

#include <QPainter>

namespace nautrel {

BubbleView::BubbleView(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAccessibleName(QStringLiteral("Bubble"));
}

// Brighter towards the light, which falls in from above on the left.
void BubbleView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const auto circle = QRectF(rect()).adjusted(1, 1, -1, -1);
  QRadialGradient air(circle.center(), circle.width() / 2,
                      circle.topLeft() + QPointF(circle.width(), circle.height()) * 0.32);
  air.setColorAt(0, QColor(255, 255, 255, 190));
  air.setColorAt(0.35, QColor(190, 232, 247, 70));
  air.setColorAt(1, QColor(190, 232, 247, 40));
  painter.setPen(QPen(QColor(215, 242, 252, 170), 1.2));
  painter.setBrush(air);
  painter.drawEllipse(circle);
}

}  // namespace nautrel
