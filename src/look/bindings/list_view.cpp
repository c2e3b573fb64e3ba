// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace nautrel {

// A press moves the focus by the model, which leaves it alone beside the lines.
ListView::ListView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setFocusPolicy(Qt::TabFocus);
}

int ListView::rowAt(const QMouseEvent& event) const {
  return indexAt(event.position().toPoint()).row();
}

void ListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && pressed) pressed(rowAt(*event));
}

void ListView::mouseMoveEvent(QMouseEvent*) {}
void ListView::mouseReleaseEvent(QMouseEvent*) {}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && doubleClicked) doubleClicked(rowAt(*event));
}

int ListView::linesToMove(int key) const {
  const int all = model() == nullptr ? 0 : model()->rowCount();
  const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)) - 1);
  switch (key) {
    case Qt::Key_Up:
      return -1;
    case Qt::Key_Down:
      return 1;
    case Qt::Key_PageUp:
      return -page;
    case Qt::Key_PageDown:
      return page;
    case Qt::Key_Home:
      return -all;
    case Qt::Key_End:
      return all;
    default:
      return 0;
  }
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const bool plain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
  const int by = plain ? linesToMove(event->key()) : 0;
  if (by != 0)
    moved ? moved(by) : void();
  else if (plain && !event->text().isEmpty() && event->text().at(0).isPrint())
    type(event->text());
  else
    event->ignore();
}

// Characters that follow each other quickly are one beginning.
void ListView::type(const QString& text) {
  if (!sinceTyped_.isValid() || sinceTyped_.elapsed() > QApplication::keyboardInputInterval())
    beginning_.clear();
  sinceTyped_.start();
  if (beginning_.isEmpty() && text == QStringLiteral(" ")) return;
  beginning_ += text;
  if (typed) typed(beginning_, beginning_.size() == text.size());
}

}  // namespace nautrel
