// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/spin_arrows.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolButton>
#include <QVBoxLayout>

namespace nautrel {
namespace {

/// The last box of the layout before the widget stands; `stands` tells whether it stands there.
const QLineEdit* boxBefore(const QLayout& layout, const QWidget& widget, bool& stands) {
  const QLineEdit* box = nullptr;
  for (int i = 0; i < layout.count() && !stands; ++i) {
    auto* item = layout.itemAt(i);
    stands = item->widget() == &widget;
    if (auto* edit = qobject_cast<QLineEdit*>(item->widget())) box = edit;
    if (const auto* inner = item->layout())
      if (const auto* found = boxBefore(*inner, widget, stands)) box = found;
  }
  return box;
}

}  // namespace

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

QString SpinArrows::spokenValue() const {
  bool stands = false;
  const auto* layout = parentWidget() == nullptr ? nullptr : parentWidget()->layout();
  const auto* box = layout == nullptr ? nullptr : boxBefore(*layout, *this, stands);
  return box == nullptr ? QString() : box->text();
}

QStringList SpinArrows::spokenActions() const {
  return {QAccessibleActionInterface::increaseAction(),
          QAccessibleActionInterface::decreaseAction()};
}

void SpinArrows::doSpoken(const QString& action) {
  step(action == QAccessibleActionInterface::increaseAction());
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
