// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/qt_looks.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTimer>
#include <algorithm>

#include "app/MDIForm1.h"
#include "companion/ExchangeForm.h"
#include "look/frame/child_window.h"
#include "look/frame/companion_window.h"
#include "look/frame/main_frame.h"
#include "look/frame/splash_window.h"
#include "platform/program.h"
#include "shell/Form1.h"

namespace nautrel {
namespace {

constexpr int kRepaintEvery = 40;  // milliseconds

}  // namespace

QtLooks::QtLooks(Program& program) : program_(program), keyboard_(program, *this) {
  sinceRepaint_.start();
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, &QtLooks::focusMoved);
}

QtLooks::~QtLooks() = default;

std::unique_ptr<FormLook> QtLooks::make(Form& form) {
  if (auto* main = dynamic_cast<MDIForm1*>(&form)) {
    auto frame = std::make_unique<MainFrame>(*this, *main);
    frame_ = frame.get();
    return frame;
  }
  if (dynamic_cast<Form1*>(&form) != nullptr) return std::make_unique<SplashWindow>(*this, form);
  if (auto* exchange = dynamic_cast<exchange::ExchangeForm*>(&form)) {
    auto window = std::make_unique<CompanionWindow>(*this, *exchange);
    companion_ = window->root();
    return window;
  }
  return std::make_unique<ChildWindow>(*this, form);
}

QWidget* QtLooks::topWindow() const {
  return frame_ != nullptr ? &frame_->window() : companion_.data();
}

void QtLooks::add(FormView& view) {
  views_.push_back(&view);
}

void QtLooks::remove(FormView& view) {
  views_.erase(std::remove(views_.begin(), views_.end(), &view), views_.end());
  if (static_cast<FormView*>(frame_) == &view) frame_ = nullptr;
}

FormView* QtLooks::viewOf(const Form& form) const {
  for (auto* view : views_)
    if (&view->form() == &form) return view;
  return nullptr;
}

FormView* QtLooks::viewAround(const QWidget* widget) const {
  for (; widget != nullptr; widget = widget->parentWidget())
    for (auto* view : views_)
      if (view->root() == widget) return view;
  return nullptr;
}

void QtLooks::flush() {
  if (flushing_) return;
  flushing_ = true;
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->flush();
  if (frame_ != nullptr) frame_->pushStack();
  if (auto* front = frontView()) front->pushFocus();
  flushing_ = false;
}

FormView* QtLooks::frontView() const {
  const auto* front = program_.activeForm();
  return front == nullptr ? nullptr : viewOf(*front);
}

void QtLooks::flushSoon() {
  if (std::exchange(waiting_, true)) return;
  QTimer::singleShot(0, this, [this] {
    waiting_ = false;
    program_.desktop().atEdge([this] { flush(); });
  });
}

void QtLooks::repaintIfDue() {
  if (flushing_ || sinceRepaint_.elapsed() < kRepaintEvery) return;
  flushing_ = true;
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->repaintNow();
  flushing_ = false;
  sinceRepaint_.restart();
}

namespace {

bool isOfStyle(const QEvent& event) {
  return event.type() == QEvent::ApplicationFontChange ||
         event.type() == QEvent::ApplicationPaletteChange || event.type() == QEvent::StyleChange;
}

}  // namespace

void QtLooks::restyleSoon() {
  if (std::exchange(restyling_, true)) return;
  QTimer::singleShot(0, this, [this] {
    restyling_ = false;
    for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->restyle();
  });
}

// A press anywhere on a child window brings it to the front, before the widget below the mouse
// answers. Why a widget gets the focus is told to itself alone, just before all are told.
bool QtLooks::eventFilter(QObject* watched, QEvent* event) {
  if (isOfStyle(*event) && watched == topWindow()) restyleSoon();
  if (event->type() == QEvent::FocusIn) focusReason_ = static_cast<QFocusEvent*>(event)->reason();
  if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType())
    if (auto* view = viewAround(static_cast<QWidget*>(watched)))
      if (program_.activeForm() != &view->form()) view->form().userActivated();
  return false;
}

// Only what the user does counts: while a handler runs, or the screen follows a model, the focus
// moves on the screen are echoes. Where the toolkit puts the focus when a window comes to the front
// or back from another program is its own memory and not the user's wish: the model's is pushed.
// An assistive tool gives it to a control directly: inside one window, or into one that has not
// come to the front before.
void QtLooks::focusMoved(QWidget* before, QWidget* now) {
  if (now == nullptr || flushing_ || program_.handling()) return;
  auto* view = viewAround(now);
  auto* binding = view == nullptr ? nullptr : view->bindingAround(now);
  if (binding == nullptr) return;
  const bool cameFirst = view->root()->windowState().testFlag(Qt::WindowActive);
  const bool byTool = focusReason_ == Qt::OtherFocusReason &&
                      (!cameFirst || view->bindingAround(before) != nullptr);
  if (focusReason_ == Qt::MouseFocusReason || byTool)
    return view->form().userFocus(binding->control());
  if (auto* front = frontView()) front->formChanged();
}

}  // namespace nautrel
