// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/main_frame.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QProgressBar>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>

#include "app/MDIForm1.h"
#include "look/convert.h"
#include "look/frame/child_window.h"
#include "look/frame/qt_looks.h"
#include "look/frame/status_panels.h"
#include "look/frame/window_place.h"
#include "look/pictures/icons.h"
#include "look/pictures/image_picture.h"
#include "platform/program.h"

namespace nautrel {
namespace {

constexpr int kRightButton = 2;
constexpr int kHourglass = 11;

/// The keys of the toolbar are words of the system; the icons' files keep to ASCII.
QString iconName(const std::string& key) {
  return toQt(key)
      .replace(QStringLiteral("ä"), QStringLiteral("ae"))
      .replace(QStringLiteral("ö"), QStringLiteral("oe"))
      .replace(QStringLiteral("ü"), QStringLiteral("ue"));
}

/// Reports to the model what the user does to the main window's frame.
class FrameWindow : public QMainWindow {
 public:
  explicit FrameWindow(MDIForm1& form) : form_(&form) {}
  void release() { form_ = nullptr; }
  /// The size that window and frame take together, when it is not maximized, once the desktop has
  /// put its frame around.
  void fitInto(QSize outer) {
    outer_ = outer;
    resize(outer);
  }
  /// The desktop may maximize it later than it is shown.
  void shown() {
    awaitsSize_ = isMaximized() && size() == outer_;
    fit();
    report();
  }
  bool following = false;

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    if (form_ != nullptr) form_->program().desktop().end();
  }
  void moveEvent(QMoveEvent* event) override {
    QMainWindow::moveEvent(event);
    fit();
    report();
  }
  void resizeEvent(QResizeEvent* event) override {
    QMainWindow::resizeEvent(event);
    fit();
    // Sized by somebody else: that size is kept.
    if (!following && isVisible() && !isMaximized() && size() != outer_) outer_ = QSize();
    report();
  }
  void changeEvent(QEvent* event) override {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || form_ == nullptr || following) return;
    form_->userState(isMinimized()   ? WindowState::Minimized
                     : isMaximized() ? WindowState::Maximized
                                     : WindowState::Normal);
    fit();
    report();
  }

 private:
  void report() {
    if (form_ == nullptr || following || isMinimized() || !isVisible()) return;
    const QRect outer = frameGeometry();
    form_->userResized(toTwips(outer.x()), toTwips(outer.y()), toTwips(outer.width()),
                       toTwips(outer.height()));
    if (awaitsSize_ && isMaximized() && size() != outer_) {
      awaitsSize_ = false;
      form_->userSettled();
    }
  }
  void fit() {
    const QSize chrome = frameGeometry().size() - size();
    if (following || isMaximized() || size() != outer_ || chrome.isNull()) return;
    resize(std::exchange(outer_, QSize()) - chrome);
  }

  MDIForm1* form_;
  QSize outer_;
  bool awaitsSize_ = false;
};

}  // namespace

void Ground::setGround(const QColor& color, const Picture& picture) {
  if (color_ == color && picture_ == picture) return;
  color_ = color;
  picture_ = picture;
  viewport()->update();
}

// The picture covers the ground; what of it does not fit is cut at the sides.
void Ground::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), color_);
  const auto* image = imageOf(picture_);
  if (image == nullptr) return;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  QSizeF size = image->size();
  size.scale(viewport()->size(), Qt::KeepAspectRatioByExpanding);
  QRectF target(QPointF(), size);
  target.moveCenter(QRectF(viewport()->rect()).center());
  painter.drawImage(target, *image);
}

void Ground::resizeEvent(QResizeEvent* event) {
  QMdiArea::resizeEvent(event);
  form_.program().setArea({toTwips(viewport()->width()), toTwips(viewport()->height())});
}

// What nobody wants of the mouse inside a child comes by here, too.
void Ground::mousePressEvent(QMouseEvent* event) {
  QMdiArea::mousePressEvent(event);
  pressed_ = event->button() == Qt::RightButton &&
             viewport()->childAt(event->position().toPoint()) == nullptr;
}

void Ground::mouseReleaseEvent(QMouseEvent* event) {
  QMdiArea::mouseReleaseEvent(event);
  if (event->button() == Qt::RightButton && std::exchange(pressed_, false))
    form_.MDIForm_MouseUp(kRightButton);
}

MainFrame::MainFrame(QtLooks& looks, MDIForm1& form)
    : FormView(looks, form), form_(form), window_(new FrameWindow(form)), area_(new Ground(form)) {
  window_->setObjectName(QStringLiteral("MDIForm1"));
  window_->setWindowIcon(namedIcon("nautrel"));
  // The toolkit's own menu would take the toolbar away.
  window_->setContextMenuPolicy(Qt::NoContextMenu);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->setAccessibleName(QStringLiteral("Windows of the logbook"));
  window_->setCentralWidget(area_);
  makeMenus();
  makeKeys();
  makeToolbar();
  makeStatus();
  bindControls();
  placeWindow();
  form_.cascade = [this] { area_->cascadeSubWindows(); };
  // Whom the toolkit brings to the front by itself is not the user's wish: he presses a window or a
  // key for that.
  QObject::connect(area_, &QMdiArea::subWindowActivated, area_, [&looks] { looks.flushSoon(); });
}

MainFrame::~MainFrame() {
  close();
}

QWidget* MainFrame::root() const {
  return window_;
}

void MainFrame::makeMenus() {
  for (auto* model : form_.menus()) {
    auto* menu = new QMenu(toQt(model->caption()), window_);
    menus_[model] = menu;
    for (auto* item : model->items()) {
      if (item == nullptr) {
        menu->addSeparator();
        continue;
      }
      auto* action = menu->addAction(toQt(item->caption()));
      if (!item->shortcut().empty()) action->setShortcut(QKeySequence(toQt(item->shortcut())));
      QObject::connect(action, &QAction::triggered, area_, [item] { item->userClick(); });
      actions_[item] = action;
    }
    if (model->visible()) window_->menuBar()->addMenu(menu);
  }
}

void MainFrame::makeToolbar() {
  auto* bar = window_->addToolBar(QStringLiteral("Commands"));
  bar->setObjectName(QStringLiteral("Toolbar1"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setIconSize({24, 24});
  for (const auto& button : form_.Toolbar1.buttons()) {
    if (button.key.empty()) {
      buttons_.append(buttons_.isEmpty() ? nullptr : bar->addSeparator());
      continue;
    }
    auto* action = bar->addAction(namedIcon(fromQt(iconName(button.key))), toQt(button.toolTip));
    QObject::connect(action, &QAction::triggered, area_,
                     [this, key = button.key] { form_.Toolbar1.userClick(key); });
    buttons_.append(action);
  }
}

void MainFrame::makeStatus() {
  auto* strip = new QWidget;
  strip->setObjectName(QStringLiteral("Picture1"));
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(6, 3, 6, 3);
  auto* progress = new QProgressBar(strip);
  progress->setObjectName(QStringLiteral("ProgressBar1"));
  progress->setAccessibleName(QStringLiteral("Progress"));
  progress->setTextVisible(false);
  row->addWidget(progress);
  panels_ = new StatusPanels(form_.StatusBar1);
  panels_->setObjectName(QStringLiteral("StatusBar1"));
  bottom_ = new QStackedWidget;
  bottom_->addWidget(panels_);
  bottom_->addWidget(strip);
  window_->statusBar()->setSizeGripEnabled(false);
  window_->statusBar()->addWidget(bottom_, 1);
}

// The size that it has when it is not maximized: large enough for every child, inside the screen.
void MainFrame::placeWindow() {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize size = QSize(1024, 768).boundedTo(screen.size());
  form_.setWidth(toTwips(size.width()));
  form_.setHeight(toTwips(size.height()));
  form_.setLeft(toTwips(screen.x() + (screen.width() - size.width()) / 2));
  form_.setTop(toTwips(screen.y() + (screen.height() - size.height()) / 2));
}

QMenu& MainFrame::menu(const Menu& menu) const {
  return *menus_.value(&menu);
}

bool MainFrame::isShortcut(const QKeySequence& keys) const {
  if (keys_.contains(keys)) return true;
  for (auto* action : actions_)
    if (action->shortcut() == keys) return true;
  return false;
}

void MainFrame::addKey(const char* keys, std::function<void()> action) {
  keys_.append(QKeySequence(QString::fromLatin1(keys)));
  QObject::connect(new QShortcut(keys_.last(), window_), &QShortcut::activated, area_,
                   std::move(action));
}

// The keys by which every child can be reached, turned, moved and left, whatever it holds.
void MainFrame::makeKeys() {
  auto& program = form_.program();
  addKey("Ctrl+F4", [&program] { program.userCloseWindow(); });
  for (const char* keys : {"Ctrl+Tab", "Ctrl+F6"})
    addKey(keys, [&program] { program.userNextWindow(1); });
  for (const char* keys : {"Ctrl+Shift+Backtab", "Ctrl+Shift+Tab", "Ctrl+Shift+F6"})
    addKey(keys, [&program] { program.userNextWindow(-1); });
  const auto turn = [&program](int direction) {
    if (auto* front = program.activeForm()) front->userTurnPage(direction);
  };
  addKey("Ctrl+PgDown", [turn] { turn(1); });
  addKey("Ctrl+PgUp", [turn] { turn(-1); });
  addKey("Alt+-", [this] {
    if (auto* front = area_->activeSubWindow()) front->showSystemMenu();
  });
  addKey("F10", [this] { window_->menuBar()->setActiveAction(window_->menuBar()->actions()[0]); });
}

void MainFrame::pushStack() {
  QList<QMdiSubWindow*> wanted;
  for (const auto* form : form_.program().stack())
    if (auto* window = qobject_cast<QMdiSubWindow*>(looks().viewOf(*form)->root()))
      wanted.append(window);
  auto shown = area_->subWindowList(QMdiArea::StackingOrder);
  shown.removeIf([&](QMdiSubWindow* window) { return !wanted.contains(window); });
  if (shown != wanted)
    for (auto* window : wanted) window->raise();
  const auto* front = form_.program().activeForm();
  if (front != nullptr && area_->activeSubWindow() != wanted.last())
    area_->setActiveSubWindow(wanted.last());
}

void MainFrame::controlChanged(Control& control) {
  commandsDirty_ = true;
  FormView::controlChanged(control);
  formChanged();
}

// The hourglass is of use only while a handler runs, so it does not wait for its end.
void MainFrame::formChanged() {
  FormView::formChanged();
  pushPointer();
}

void MainFrame::pushPointer() {
  const bool wait = form_.MousePointer() == kHourglass;
  if (wait == hourglass_) return;
  hourglass_ = wait;
  wait ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
}

// A screen may be gone since the place was stored.
void MainFrame::pullBack() {
  QList<QRect> screens;
  for (const auto* screen : QGuiApplication::screens()) screens << screen->availableGeometry();
  const QRect wanted(toPixels(form_.Left()), toPixels(form_.Top()), toPixels(form_.Width()),
                     toPixels(form_.Height()));
  const auto place = pulledBack(wanted, screens);
  if (place == wanted) return;
  form_.userResized(toTwips(place.x()), toTwips(place.y()), toTwips(place.width()),
                    toTwips(place.height()));
}

void MainFrame::show() {
  if (window_->isVisible()) return;
  auto& frame = static_cast<FrameWindow&>(*window_);
  if (form_.windowState() == WindowState::Normal) pullBack();
  formChanged();
  flush();
  frame.following = true;
  frame.move(toPixels(form_.Left()), toPixels(form_.Top()));
  frame.fitInto({toPixels(form_.Width()), toPixels(form_.Height())});
  form_.windowState() == WindowState::Maximized ? frame.showMaximized() : frame.show();
  frame.following = false;
  frame.shown();
}

void MainFrame::close() {
  if (!window_) return;
  releaseBindings();
  form_.cascade = nullptr;
  static_cast<FrameWindow&>(*window_).release();
  area_->disconnect();
  window_->hide();
  window_->deleteLater();
  window_ = nullptr;
}

void MainFrame::pushCommands() {
  for (auto it = actions_.begin(); it != actions_.end(); ++it)
    it.value()->setEnabled(it.key()->enabled());
  const auto& buttons = form_.Toolbar1.buttons();
  for (qsizetype i = 0; i < buttons_.size(); ++i)
    if (buttons_[i] != nullptr && !buttons[static_cast<std::size_t>(i)].key.empty())
      buttons_[i]->setEnabled(buttons[static_cast<std::size_t>(i)].enabled);
}

void MainFrame::pushForm() {
  if (!window_) return;
  auto& frame = static_cast<FrameWindow&>(*window_);
  if (std::exchange(commandsDirty_, false)) pushCommands();
  window_->setWindowTitle(toQt(form_.caption()));
  panels_->setText(toQt(form_.StatusBar1.panelText(3)));
  if (const int page = form_.Picture1.visible() ? 1 : 0; bottom_->currentIndex() != page) {
    bottom_->setCurrentIndex(page);
    bottom_->currentWidget()->setGeometry(bottom_->contentsRect());
    bottom_->currentWidget()->layout()->activate();
  }
  area_->setGround(toQt(form_.BackColor()), form_.picture());
  if (form_.windowState() != WindowState::Normal || window_->isMaximized()) return;
  const QSize chrome = window_->frameGeometry().size() - window_->size();
  const QSize size = QSize(toPixels(form_.Width()), toPixels(form_.Height())) - chrome;
  frame.following = true;
  if (window_->size() != size) window_->resize(size);
  const QPoint place(toPixels(form_.Left()), toPixels(form_.Top()));
  if (window_->pos() != place) window_->move(place);
  frame.following = false;
}

}  // namespace nautrel
