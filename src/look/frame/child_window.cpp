// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/child_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMdiArea>
#include <QMenu>
#include <QMouseEvent>

#include "look/convert.h"
#include "look/frame/forms.h"
#include "look/frame/main_frame.h"
#include "look/frame/qt_looks.h"
#include "look/pictures/icons.h"
#include "platform/program.h"
#include "shell/placing.h"

namespace nautrel {

/// Reports to the form what the user does to its frame.
class SubWindow : public QMdiSubWindow {
 public:
  SubWindow(Form& form, bool sizable) : form_(&form) {
    setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                   (sizable ? Qt::WindowMinMaxButtonsHint : Qt::WindowType(0)));
    setAttribute(Qt::WA_DeleteOnClose, false);
    // A press on a place that takes no focus leaves the focus where it is.
    setFocusPolicy(Qt::NoFocus);
    arrangeMenu(sizable);
    setWindowIcon(namedIcon("nautrel"));
    connect(this, &QMdiSubWindow::windowStateChanged, this,
            [this](Qt::WindowStates before, Qt::WindowStates now) { stateChanged(before, now); });
  }

  void release() { form_ = nullptr; }
  bool following = false;

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    if (form_ != nullptr) form_->userClose();
  }
  void moveEvent(QMoveEvent* event) override {
    QMdiSubWindow::moveEvent(event);
    report();
  }
  void resizeEvent(QResizeEvent* event) override {
    QMdiSubWindow::resizeEvent(event);
    report();
  }
  // A minimized window has no button to restore it by.
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (isMinimized() && event->button() == Qt::LeftButton) return showNormal();
    QMdiSubWindow::mouseDoubleClickEvent(event);
  }

 private:
  // What the menu has no meaning for goes; its keys are the main window's, so that they neither
  // stand in the way of a command nor in each other's.
  void arrangeMenu(bool sizable) {
    for (auto* action : systemMenu()->actions()) {
      const auto text = action->text();
      action->setShortcuts(QList<QKeySequence>());
      if (text == tr("Stay on &Top") || (!sizable && text == tr("&Size")))
        systemMenu()->removeAction(action);
      else if (text == tr("&Close"))
        action->setText(text + QStringLiteral("\tCtrl+F4"));
      else if (text == tr("&Restore"))
        connect(systemMenu(), &QMenu::aboutToShow, action,
                [this, action, sizable] { action->setVisible(sizable || isMinimized()); });
    }
  }
  void report() {
    if (form_ == nullptr || following || isMinimized() || !form_->visible()) return;
    form_->userResized(toTwips(x()), toTwips(y()), toTwips(width()), toTwips(height()));
  }
  // Coming to the front and leaving it are states of the window too, but none of the form's.
  void stateChanged(Qt::WindowStates before, Qt::WindowStates now) {
    constexpr auto kSizes = Qt::WindowMinimized | Qt::WindowMaximized;
    if (form_ == nullptr || following || !((before ^ now) & kSizes)) return;
    form_->userState(now & Qt::WindowMinimized   ? WindowState::Minimized
                     : now & Qt::WindowMaximized ? WindowState::Maximized
                                                 : WindowState::Normal);
  }

  Form* form_;
};

ChildWindow::ChildWindow(QtLooks& looks, Form& form)
    : FormView(looks, form), sizable_(isSizable(form.name())) {
  window_ = new SubWindow(form, sizable_);
  window_->setWidget(makeContent(form.name()));
  if (auto* frame = looks.mainFrame()) frame->area().addSubWindow(window_, window_->windowFlags());
  bindControls();
  flush();
  measure();
}

namespace {

/// The room for a child where its place, which is reckoned from the whole frame, puts it.
QSize roomFor(const QMdiArea& area) {
  const QSize seen = area.viewport()->size();
  const QSize moved(toPixels(kLeftOfMiddle), toPixels(kAboveMiddle));
  return seen.boundedTo((seen + moved) * 2 - area.window()->frameGeometry().size());
}

}  // namespace

// As large as what it holds, and no larger than the room for it as far as that can shrink. Captions
// that the controls have just brought in do not reach the layouts of a hidden window.
void ChildWindow::measure() {
  if (!window_ || window_->isMinimized() || window_->isMaximized()) return;
  for (auto* widget : window_->findChildren<QWidget*>()) widget->updateGeometry();
  for (auto* layout : window_->findChildren<QLayout*>()) layout->invalidate();
  QSize size = window_->sizeHint();
  if (const auto* area = window_->mdiArea(); area != nullptr && area->isVisible())
    size = size.boundedTo(roomFor(*area)).expandedTo(window_->minimumSizeHint());
  window_->following = true;
  giveSize(size);
  window_->following = false;
  form().setWidth(toTwips(size.width()));
  form().setHeight(toTwips(size.height()));
}

ChildWindow::~ChildWindow() {
  close();
}

QWidget* ChildWindow::root() const {
  return window_;
}

void ChildWindow::show() {
  if (!window_) return;
  flush();
  window_->following = true;
  window_->show();
  window_->following = false;
  startTimers();
  formChanged();
}

void ChildWindow::close() {
  if (!window_) return;
  releaseBindings();
  window_->release();
  window_->hide();
  if (auto* area = window_->mdiArea()) area->removeSubWindow(window_);
  window_->deleteLater();
  window_ = nullptr;
}

void ChildWindow::pushForm() {
  if (!window_) return;
  const auto& model = form();
  window_->following = true;
  if (const auto title = toQt(model.caption()); window_->windowTitle() != title)
    window_->setWindowTitle(title);
  if (auto* content = window_->widget(); content->isEnabled() != model.enabled())
    content->setEnabled(model.enabled());
  if (model.windowState() == WindowState::Normal) {
    const QSize size(toPixels(model.Width()), toPixels(model.Height()));
    if (window_->size() != size && !window_->isMinimized()) giveSize(size);
    const QPoint place(toPixels(model.Left()), toPixels(model.Top()));
    if (window_->pos() != place && !window_->isMinimized()) window_->move(place);
  }
  pushState();
  window_->following = false;
}

void ChildWindow::giveSize(const QSize& size) {
  if (sizable_)
    window_->resize(size);
  else
    window_->setFixedSize(size);
}

// A fixed size would hold a minimized window open.
void ChildWindow::pushState() {
  if (!form().visible()) return;
  const bool small = form().windowState() == WindowState::Minimized;
  if (small == window_->isMinimized()) return;
  if (small) {
    window_->setMinimumSize(0, 0);
    return window_->showMinimized();
  }
  window_->showNormal();
  giveSize({toPixels(form().Width()), toPixels(form().Height())});
}

}  // namespace nautrel
