#include "platform/qt/qt_looks.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <algorithm>

#include "platform/program.h"
#include "platform/qt/child_window.h"
#include "platform/qt/main_frame.h"
#include "platform/qt/splash_window.h"
#include "shell/Form1.h"
#include "shell/MDIForm1.h"

namespace nautrel {
namespace {

constexpr int kRepaintEvery = 40;  // milliseconds

}  // namespace

QtLooks::QtLooks(Program& program) : program_(program) {
  sinceRepaint_.start();
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { focusMoved(now); });
}

QtLooks::~QtLooks() = default;

std::unique_ptr<FormLook> QtLooks::make(Form& form) {
  if (auto* main = dynamic_cast<MDIForm1*>(&form)) {
    auto frame = std::make_unique<MainFrame>(*this, *main);
    frame_ = frame.get();
    return frame;
  }
  if (dynamic_cast<Form1*>(&form) != nullptr) return std::make_unique<SplashWindow>(*this, form);
  return std::make_unique<ChildWindow>(*this, form);
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
  flushing_ = false;
}

void QtLooks::flushSoon() {
  if (std::exchange(waiting_, true)) return;
  QTimer::singleShot(0, this, [this] {
    waiting_ = false;
    flush();
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

bool pastesHere(const QObject& widget) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return !edit->isReadOnly();
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) return !edit->isReadOnly();
  const auto* combo = qobject_cast<const QComboBox*>(&widget);
  return combo != nullptr && combo->isEditable();
}

}  // namespace

// A box keeps Ctrl+V for pasting, and leaves the menu every other command of its bar, also those
// that the toolkit's boxes know a use of their own for. A key comes by here on its way to the
// window of the system first: only the widget behind it can say what it wants.
bool QtLooks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride || frame_ == nullptr || !watched->isWidgetType())
    return false;
  const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
  if (!frame_->isShortcut(keys)) return false;
  if (keys == QKeySequence(Qt::CTRL | Qt::Key_V) && pastesHere(*watched)) return false;
  event->ignore();
  return true;
}

// Only what the user does counts: while a handler runs, or the screen follows a model, the focus
// moves on the screen are echoes.
void QtLooks::focusMoved(QWidget* now) {
  if (now == nullptr || flushing_ || program_.handling()) return;
  auto* view = viewAround(now);
  if (view == nullptr) return;
  if (auto* binding = view->bindingAround(now)) view->form().userFocus(binding->control());
}

}  // namespace nautrel
