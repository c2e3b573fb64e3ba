// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/companion_window.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>

#include "companion/ExchangeForm.h"
#include "look/convert.h"
#include "look/frame/forms.h"
#include "look/frame/window_place.h"
#include "look/pictures/icons.h"

namespace nautrel {

using exchange::ExchangeForm;

namespace {

constexpr QSize kWished(760, 560);

/// The first file of this machine among what is dragged; empty if there is none.
QString fileIn(const QMimeData& data) {
  for (const auto& url : data.urls())
    if (url.isLocalFile()) return url.toLocalFile();
  return {};
}

/// Reports to the form what the user does to its frame.
class TopWindow : public QWidget {
 public:
  explicit TopWindow(ExchangeForm& form) : form_(&form) { setAcceptDrops(true); }
  void release() { form_ = nullptr; }
  void report() {
    if (form_ == nullptr || isMinimized() || !isVisible()) return;
    const auto outer = frameGeometry();
    form_->userResized(toTwips(outer.x()), toTwips(outer.y()), toTwips(outer.width()),
                       toTwips(outer.height()));
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    if (form_ != nullptr) form_->userLeave();
  }
  void moveEvent(QMoveEvent* event) override {
    QWidget::moveEvent(event);
    report();
  }
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    report();
  }
  void changeEvent(QEvent* event) override {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || form_ == nullptr) return;
    form_->userState(isMinimized()   ? WindowState::Minimized
                     : isMaximized() ? WindowState::Maximized
                                     : WindowState::Normal);
    report();
  }
  void dragEnterEvent(QDragEnterEvent* event) override {
    if (!fileIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
  }
  void dropEvent(QDropEvent* event) override {
    const auto file = fileIn(*event->mimeData());
    if (file.isEmpty() || form_ == nullptr) return;
    event->acceptProposedAction();
    // Whoever drags waits until the drop is answered; boxes may open on it.
    QMetaObject::invokeMethod(
        this,
        [this, file] {
          if (form_ != nullptr) form_->userDrop(fromQt(file));
        },
        Qt::QueuedConnection);
  }

 private:
  ExchangeForm* form_;
};

}  // namespace

CompanionWindow::CompanionWindow(QtLooks& looks, ExchangeForm& form)
    : FormView(looks, form), window_(new TopWindow(form)) {
  window_->setObjectName(QStringLiteral("Companion"));
  window_->setWindowIcon(namedIcon("nautrel"));
  auto* column = new QVBoxLayout(window_);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(makeContent(form.name()));
  prepareScrolling();
  makeKeys(form);
  bindControls();
  flush();
}

CompanionWindow::~CompanionWindow() {
  close();
}

QWidget* CompanionWindow::root() const {
  return window_;
}

// On a small screen a page scrolls, and what gets the focus comes into sight.
void CompanionWindow::prepareScrolling() {
  for (auto* area : window_->findChildren<QScrollArea*>()) {
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
      if (now != nullptr && area->isAncestorOf(now)) area->ensureWidgetVisible(now, 6, 6);
    });
  }
}

void CompanionWindow::makeKeys(ExchangeForm& form) {
  const auto add = [&](const char* keys, int direction) {
    QObject::connect(new QShortcut(QKeySequence(QString::fromLatin1(keys)), window_),
                     &QShortcut::activated, window_,
                     [&form, direction] { form.userTurnPage(direction); });
  };
  for (const char* keys : {"Ctrl+PgDown", "Ctrl+Tab"}) add(keys, 1);
  for (const char* keys : {"Ctrl+PgUp", "Ctrl+Shift+Backtab", "Ctrl+Shift+Tab"}) add(keys, -1);
}

void CompanionWindow::show() {
  if (!window_ || window_->isVisible()) return;
  flush();
  const auto& screen = *window_->screen();
  window_->resize(kWished.boundedTo(roomOn(screen)));
  window_->show();
  static_cast<TopWindow&>(*window_).report();
  startTimers();
  formChanged();
}

void CompanionWindow::close() {
  if (!window_) return;
  releaseBindings();
  static_cast<TopWindow&>(*window_).release();
  window_->hide();
  window_->deleteLater();
  window_ = nullptr;
}

void CompanionWindow::pushForm() {
  if (!window_) return;
  if (const auto title = toQt(form().caption()); window_->windowTitle() != title)
    window_->setWindowTitle(title);
}

}  // namespace nautrel
