// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_widget.h"

#include <QHelpEvent>
#include <QImage>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "look/charts/chart_layout.h"
#include "look/charts/chart_painter.h"

namespace nautrel {
namespace {

constexpr ChartTurn kFirstTurn{20, 16};
constexpr double kGreatestYaw = 60;
constexpr double kGreatestPitch = 45;
constexpr double kDegreesPerPixel = 0.4;

// Pasted into a letter the chart is looked at closely, and printed.
constexpr int kCopyScale = 2;

QPalette paperPalette() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  return palette;
}

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent), turn_(kFirstTurn) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartWidget::setData(ChartData data) {
  data_ = std::move(data);
  turning_ = turning_ && data_.rotation;
  update();
}

std::unique_ptr<QMimeData> ChartWidget::copy() const {
  QImage picture(size() * kCopyScale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kCopyScale);
  paint(&picture, paperPalette());
  auto mime = std::make_unique<QMimeData>();
  mime->setImageData(picture);
  mime->setText(tabSeparated(data_));
  return mime;
}

void ChartWidget::paint(QPaintDevice* device, const QPalette& palette) const {
  QPainter painter(device);
  painter.setFont(font());
  painter.fillRect(rect(), palette.color(QPalette::Base));
  const ChartLayout layout(data_, turn_, QFontMetricsF(font()), rect());
  ChartPainter(painter, data_, layout, palette).paint();
}

void ChartWidget::paintEvent(QPaintEvent*) {
  edge([this] { paint(this, palette()); });
}

bool ChartWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  edge([&] { tellRow(*static_cast<QHelpEvent*>(event)); });
  return true;
}

void ChartWidget::tellRow(const QHelpEvent& event) const {
  const ChartLayout layout(data_, turn_, QFontMetricsF(font()), rect());
  const int row = layout.rowAt(event.pos());
  if (row >= 0 && row < static_cast<int>(data_.rows.size()))
    QToolTip::showText(event.globalPos(), describe(data_.rows[static_cast<std::size_t>(row)]));
  else
    QToolTip::hideText();
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
  turning_ = data_.rotation && isSpatial(data_.kind) && event->button() == Qt::LeftButton &&
             event->modifiers().testFlag(Qt::ControlModifier);
  if (!turning_) return event->ignore();
  grip_ = event->position();
  setCursor(Qt::ClosedHandCursor);
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!turning_) return event->ignore();
  turnBy(event->position() - grip_);
  grip_ = event->position();
}

void ChartWidget::mouseReleaseEvent(QMouseEvent*) {
  turning_ = false;
  unsetCursor();
}

// The front of the box follows the mouse.
void ChartWidget::turnBy(QPointF distance) {
  turn_.yaw = std::clamp(turn_.yaw - distance.x() * kDegreesPerPixel, -kGreatestYaw, kGreatestYaw);
  turn_.pitch = std::clamp(turn_.pitch + distance.y() * kDegreesPerPixel, 0.0, kGreatestPitch);
  update();
}

}  // namespace nautrel
