// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/spin_arrows.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolButton>
#include <QVBoxLayout>

namespace nautrel {

SpinArrows::SpinArrows(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, 1, 1, 1);
  column->setSpacing(0);
  column->addWidget(arrow(Qt::UpArrow, true));
  column->addWidget(arrow(Qt::DownArrow, false));
}

QToolButton* SpinArrows::arrow(Qt::ArrowType type, bool up) {
  auto* button = new QToolButton(this);
  button->setArrowType(type);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoRepeat(true);
  button->setFixedSize(20, 13);
  button->setAccessibleName(up ? "One more" : "One less");
  connect(button, &QToolButton::clicked, this, [this, up] { step(up); });
  return button;
}

void SpinArrows::step(bool up) const {
  if (stepped) stepped(up);
}

void SpinArrows::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
    step(event->key() == Qt::Key_Up);
  else
    QWidget::keyPressEvent(event);
}

void SpinArrows::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  QStyleOptionFocusRect option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void SpinArrows::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void SpinArrows::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace nautrel
