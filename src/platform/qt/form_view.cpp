#include "platform/qt/form_view.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "platform/controls.h"
#include "platform/program.h"
#include "platform/qt/convert.h"
#include "platform/qt/qt_looks.h"

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
  formDirty_ = true;
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
  if (!std::exchange(formDirty_, false)) return;
  pushForm();
  pushFocus();
}

void FormView::repaintNow() {
  if (std::exchange(formDirty_, false)) pushForm();
  for (std::size_t i = 0; i < bindings_.size(); ++i) {
    if (!bindings_[i]->dirty()) continue;
    bindings_[i]->push();
    if (auto* widget = bindings_[i]->widget()) widget->repaint();
  }
}

void FormView::pushFocus() {
  // The focus of a window behind must not bring it to the front.
  if (form_.program().activeForm() != &form_ || form_.activeControl() == nullptr) return;
  const auto* binding = bindingOf(*form_.activeControl());
  if (binding == nullptr || binding->widget() == nullptr) return;
  auto* widget = binding->widget();
  auto* proxy = widget->focusProxy();
  auto* target = proxy != nullptr ? proxy : widget;
  if (target->hasFocus() || (qApp->activeModalWidget() != nullptr)) return;
  target->setFocus(Qt::OtherFocusReason);
}

}  // namespace nautrel
