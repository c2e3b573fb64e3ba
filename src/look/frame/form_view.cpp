// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/form_view.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "look/convert.h"
#include "look/frame/qt_looks.h"
#include "platform/controls.h"
#include "platform/program.h"

namespace nautrel {

FormView::FormView(QtLooks& looks, Form& form) : looks_(looks), form_(form) {
  looks_.add(*this);
}

FormView::~FormView() {
  looks_.remove(*this);
}

void FormView::bindControls() {
  for (auto* control : form_.controls()) {
    auto* widget = root()->findChild<QWidget*>(toQt(control->name()));
    if (widget == nullptr) continue;
    if (auto binding = bind(*control, *widget)) bindings_.push_back(std::move(binding));
  }
}

void FormView::releaseBindings() {
  for (auto& binding : bindings_) {
    binding->release();
    binding.release()->deleteLater();
  }
  bindings_.clear();
  for (auto* timer : timers_) {
    timer->disconnect();
    timer->stop();
    timer->deleteLater();
  }
  timers_.clear();
}

void FormView::startTimers() {
  if (!timers_.empty()) return;
  for (auto* control : form_.controls()) {
    auto* model = dynamic_cast<Timer*>(control);
    if (model == nullptr) continue;
    timers_.push_back(new QTimer);
    QObject::connect(timers_.back(), &QTimer::timeout, timers_.back(),
                     [model] { model->userFires(); });
    timers_.back()->start(model->interval());
  }
}

Binding* FormView::bindingOf(const Control& control) const {
  for (const auto& binding : bindings_)
    if (binding->shows(control)) return binding.get();
  return nullptr;
}

Binding* FormView::bindingAround(const QWidget* widget) const {
  for (; widget != nullptr && widget != root(); widget = widget->parentWidget())
    for (const auto& binding : bindings_)
      if (binding->widget() == widget && binding->control().takesFocus()) return binding.get();
  return nullptr;
}

void FormView::controlChanged(Control& control) {
  if (auto* binding = bindingOf(control)) binding->markDirty();
  news();
}

void FormView::formChanged() {
  formDirty_ = focusDirty_ = true;
  for (const auto& binding : bindings_)
    if (binding->followsFocus()) binding->markDirty();
  news();
}

void FormView::refresh(Control& control) {
  if (auto* binding = bindingOf(control)) binding->markDirty();
  looks_.repaintIfDue();
}

void FormView::news() {
  if (!form_.program().handling()) looks_.flushSoon();
}

void FormView::flush() {
  for (std::size_t i = 0; i < bindings_.size(); ++i)
    if (bindings_[i]->dirty()) bindings_[i]->push();
  if (std::exchange(formDirty_, false)) pushForm();
}

void FormView::restyle() {
  for (const auto& binding : bindings_) binding->restyle();
  form_.program().handle([this] { measure(); });
}

void FormView::repaintNow() {
  if (std::exchange(formDirty_, false)) pushForm();
  for (std::size_t i = 0; i < bindings_.size(); ++i) {
    if (!bindings_[i]->dirty()) continue;
    bindings_[i]->push();
    if (auto* widget = bindings_[i]->widget()) widget->repaint();
  }
}

namespace {

/// A box or a menu that is open keeps the focus, and so does a window that is being moved.
bool focusIsElsewhere() {
  return QApplication::activeModalWidget() != nullptr ||
         QApplication::activePopupWidget() != nullptr || QWidget::mouseGrabber() != nullptr;
}

}  // namespace

void FormView::pushFocus() {
  if (!focusDirty_ || focusIsElsewhere()) return;
  focusDirty_ = false;
  const auto* active = form_.activeControl();
  const auto* binding = active == nullptr ? nullptr : bindingOf(*active);
  if (binding == nullptr || binding->widget() == nullptr) return;
  auto* widget = binding->widget();
  auto* proxy = widget->focusProxy();
  auto* target = proxy != nullptr ? proxy : widget;
  if (!target->hasFocus()) target->setFocus(Qt::OtherFocusReason);
}

}  // namespace nautrel
