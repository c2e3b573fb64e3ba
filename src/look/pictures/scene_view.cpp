// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/scene_view.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "look/convert.h"
#include "platform/form.h"

namespace nautrel {
namespace {

// Pixels of an unscaled screen.
constexpr double kPen = 2;
constexpr double kOutline = 1;
constexpr QPointF kPenMiddle(kPen / 2, kPen / 2);

QPen penOf(const Figure& figure) {
  if (figure.kind == Figure::Kind::Line)
    return {toQt(figure.color), kPen, Qt::SolidLine, Qt::RoundCap};
  return figure.outlined ? QPen(Qt::black, kOutline) : QPen(Qt::NoPen);
}

int flagsOf(const Figure& text) {
  return Qt::AlignTop | Qt::TextWordWrap | (text.alignRight ? Qt::AlignRight : Qt::AlignLeft);
}

// Round, even if the widget is not in proportion to the picture.
void drawCircle(QPainter& painter, const QRectF& area) {
  const double radius = std::min(area.width(), area.height()) / 2;
  painter.drawEllipse(area.center(), radius, radius);
}

}  // namespace

void SceneView::setFigures(std::vector<Figure> figures) {
  figures_ = std::move(figures);
  update();
}

QString SceneView::spokenValue() const {
  QStringList texts;
  for (const auto& figure : figures_)
    if (!figure.text.empty()) texts += toQt(figure.text);
  return texts.join(QStringLiteral(", "));
}

// Edges fall between two dots of the screen, where they are sharp. A line lies on the right of its
// place and below, so that what a bucket holds ends at its walls.
QRectF SceneView::place(const Figure& figure) const {
  const double dots = devicePixelRatioF();
  const auto point = [&](double x, double y) {
    return QPointF(std::round((x - frame_.left()) / frame_.width() * width() * dots) / dots,
                   std::round((y - frame_.top()) / frame_.height() * height() * dots) / dots);
  };
  return {point(figure.left, figure.top),
          point(figure.left + figure.width, figure.top + figure.height)};
}

void SceneView::draw(QPainter& painter, const Figure& figure) const {
  const auto area = place(figure);
  const auto color = toQt(figure.color);
  painter.setPen(penOf(figure));
  painter.setBrush(color);
  switch (figure.kind) {
    case Figure::Kind::Rectangle:
      if (area.height() > 0) painter.drawRect(area.intersected(rect()));
      return;
    case Figure::Kind::Circle:
      return drawCircle(painter, area);
    case Figure::Kind::Line:
      return painter.drawLine(area.topLeft() + kPenMiddle, area.bottomRight() + kPenMiddle);
    case Figure::Kind::Text:
      painter.setPen(color);
      painter.drawText(area, flagsOf(figure), fitting(figure));
  }
}

// A text that its place does not hold is elided on one line, so that no part of a figure passes for
// another one; the tool tip tells it whole.
QString SceneView::fitting(const Figure& figure) const {
  const auto text = toQt(figure.text);
  const auto room = place(figure).toAlignedRect();
  const auto taken = fontMetrics().boundingRect(room, flagsOf(figure), text);
  if (taken.width() <= room.width() && taken.height() <= room.height()) return text;
  return fontMetrics().elidedText(text, Qt::ElideRight, room.width());
}

bool SceneView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  for (const auto& figure : figures_)
    if (figure.kind == Figure::Kind::Text && place(figure).contains(help.pos()) &&
        fitting(figure) != toQt(figure.text))
      QToolTip::showText(help.globalPos(), toQt(figure.text), this);
  return true;
}

void SceneView::paintEvent(QPaintEvent*) {
  if (frame_.isEmpty()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& figure : figures_) draw(painter, figure);
}

SceneBinding::SceneBinding(Drawing& frame, SceneView& view)
    : Binding(frame, view), frame_(frame), view_(view) {
  const auto& area = frame.figure();
  view.setFrame(QRectF(area.left, area.top, area.width, area.height));
}

bool SceneBinding::shows(const Control& control) const {
  const auto* drawing = dynamic_cast<const Drawing*>(&control);
  return drawing != nullptr && drawing->sharesPictureWith(frame_);
}

void SceneBinding::pushContent() {
  std::vector<Figure> figures;
  for (const auto* control : frame_.form().controls()) {
    if (!control->visible() || !shows(*control)) continue;
    figures.push_back(static_cast<const Drawing*>(control)->figure());
  }
  view_.setFigures(std::move(figures));
}

}  // namespace nautrel
