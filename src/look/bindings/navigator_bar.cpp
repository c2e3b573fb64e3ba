// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/navigator_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolButton>

#include "look/pictures/icons.h"

namespace nautrel {

NavigatorBar::NavigatorBar(QWidget* parent) : QFrame(parent) {
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2, 2, 2, 2);
  row->setSpacing(2);
  add(Navigator::Arrow::First, "nav_first");
  add(Navigator::Arrow::Previous, "nav_previous");
  add(Navigator::Arrow::Next, "nav_next");
  add(Navigator::Arrow::Last, "nav_last");
  setItem(QStringLiteral("dive"));
}

void NavigatorBar::setItem(const QString& item) {
  item_ = item;
  const char* const places[] = {"First", "Previous", "Next", "Last"};
  const char* const* place = places;
  for (auto* button : findChildren<QToolButton*>())
    button->setAccessibleName(QString(*place++) + ' ' + item);
}

void NavigatorBar::add(Navigator::Arrow arrow, const char* icon) {
  auto* button = new QToolButton(this);
  button->setIcon(namedSign(icon));
  button->setIconSize({16, 16});
  button->setMinimumWidth(36);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoRepeat(arrow == Navigator::Arrow::Previous || arrow == Navigator::Arrow::Next);
  layout()->addWidget(button);
  connect(button, &QToolButton::clicked, this, [this, arrow] { press(arrow); });
}

void NavigatorBar::press(Navigator::Arrow arrow) const {
  if (pressed) pressed(arrow);
}

void NavigatorBar::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      return press(Navigator::Arrow::First);
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
      return press(Navigator::Arrow::Previous);
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
      return press(Navigator::Arrow::Next);
    case Qt::Key_End:
      return press(Navigator::Arrow::Last);
    default:
      QFrame::keyPressEvent(event);
  }
}

void NavigatorBar::focusInEvent(QFocusEvent* event) {
  QFrame::focusInEvent(event);
  update();
}

void NavigatorBar::focusOutEvent(QFocusEvent* event) {
  QFrame::focusOutEvent(event);
  update();
}

void NavigatorBar::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  QStyleOptionFocusRect option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

}  // namespace nautrel
