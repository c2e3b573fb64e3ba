// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/binding.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include "look/convert.h"
#include "platform/form.h"

namespace nautrel {

Binding::Binding(Control& control, QWidget& widget) : control_(control), widget_(&widget) {
  watch(widget);
}

void Binding::watch(QWidget& part) {
  part.installEventFilter(this);
}

void Binding::push() {
  dirty_ = false;
  if (!widget_) return;
  const QSignalBlocker quiet(widget_);
  // What the widget says of itself, whatever its window or frame says of all in it.
  if (widget_->isEnabledTo(widget_->parentWidget()) != control_.enabled())
    widget_->setEnabled(control_.enabled());
  if (widget_->isVisibleTo(widget_->parentWidget()) != control_.visible())
    widget_->setVisible(control_.visible());
  if (const auto hint = toQt(control_.hint()); hint != hint_) {
    hint_ = hint;
    widget_->setToolTip(hint);
    widget_->setAccessibleDescription(hint);
  }
  pushContent();
}

void Binding::release() {
  if (!widget_) return;
  widget_->removeEventFilter(this);
  widget_->disconnect(this);
  widget_ = nullptr;
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  if (!widget_) return false;
  if (filter(event)) return true;
  if (event->type() == QEvent::KeyPress && keyPressed(event)) return true;
  return QObject::eventFilter(watched, event);
}

// The keys whose meaning is the form's: it knows tab order, default and cancel button.
bool Binding::keyPressed(QEvent* event) {
  auto* key = static_cast<QKeyEvent*>(event);
  auto& form = control_.form();
  const auto plain = key->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (plain != Qt::NoModifier) return false;
  switch (key->key()) {
    case Qt::Key_Tab:
      form.userKey(Key::Tab);
      return true;
    case Qt::Key_Backtab:
      form.userKey(Key::BackTab);
      return true;
    case Qt::Key_Escape:
      form.userKey(Key::Escape);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (form.wantsEnter()) return false;
      form.userKey(Key::Enter);
      return true;
    default:
      return false;
  }
}

}  // namespace nautrel
