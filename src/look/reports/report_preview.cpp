// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/report_preview.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "look/frame/window_place.h"
#include "look/pictures/icons.h"
#include "look/reports/pages_view.h"
#include "look/reports/report_pages.h"

namespace nautrel {
namespace {

constexpr int kWholePage = 0;
constexpr int kPageWidth = -1;
constexpr int kPercents[] = {25, 50, 75, 100, 125, 150, 200, 300, 400};
constexpr QSize kOpeningSize(1000, 760);

QAction* add(QToolBar& bar, const char* icon, const QString& text, const QKeySequence& key,
             const std::function<void()>& run) {
  auto* action = bar.addAction(text, run);
  if (icon != nullptr) action->setIcon(namedIcon(icon));
  action->setShortcut(key);
  action->setToolTip(key.isEmpty() ? text : text + " (" + key.toString() + ")");
  return action;
}

}  // namespace

ReportPreview::ReportPreview(const ReportPages& pages, const QString& title, QWidget* parent)
    : QDialog(parent),
      pages_(pages),
      area_(new QScrollArea(this)),
      view_(new PagesView(pages, area_)) {
  setWindowTitle(title);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  area_->setWidget(view_);
  area_->setAlignment(Qt::AlignHCenter);
  area_->setAccessibleName(QStringLiteral("Pages"));
  area_->setFrameShape(QFrame::NoFrame);
  area_->setBackgroundRole(QPalette::Dark);
  area_->viewport()->installEventFilter(this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(makeToolBar());
  layout->addWidget(area_);
  connect(area_->verticalScrollBar(), &QScrollBar::valueChanged, this,
          [this] { followScrolling(); });
  addKeys();
  area_->setFocus();
  fitScreen();
}

void ReportPreview::setEdge(Edge edge) {
  view_->edge = std::move(edge);
}

// The window with its frame stays on its screen, at any scale.
void ReportPreview::fitScreen() {
  const QWidget* above = parentWidget() != nullptr ? parentWidget() : this;
  resize(kOpeningSize.boundedTo(roomOn(*above->screen())));
}

void ReportPreview::addKeys() {
  const auto key = [this](std::initializer_list<QKeySequence> keys,
                          const std::function<void()>& run) {
    auto* action = new QAction(this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
  };
  key({Qt::Key_Home, Qt::CTRL | Qt::Key_Home}, [this] { showPage(1); });
  key({Qt::Key_End, Qt::CTRL | Qt::Key_End},
      [this] { area_->verticalScrollBar()->setValue(area_->verticalScrollBar()->maximum()); });
  key({Qt::Key_PageUp}, [this] { leaf(-1); });
  key({Qt::Key_PageDown}, [this] { leaf(1); });
}

QToolBar* ReportPreview::makeToolBar() {
  auto* bar = new QToolBar(this);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  add(*bar, "drucken", QStringLiteral("Print..."), QKeySequence::Print, [this] { print(); });
  add(*bar, nullptr, QStringLiteral("Save as PDF..."), QKeySequence::Save, [this] { save(); });
  bar->addSeparator();
  addLeafing(*bar);
  bar->addSeparator();
  addZoom(*bar);
  bar->addSeparator();
  add(*bar, nullptr, QStringLiteral("Close"), {}, [this] { reject(); });
  return bar;
}

void ReportPreview::addLeafing(QToolBar& bar) {
  const auto arrow = [&](const char* icon, const QString& text, const std::function<void()>& run) {
    auto* action = add(bar, nullptr, text, {}, run);
    action->setIcon(namedSign(icon));
    action->setPriority(QAction::LowPriority);
  };
  arrow("nav_first", QStringLiteral("First page"), [this] { showPage(1); });
  arrow("nav_previous", QStringLiteral("Previous page"), [this] { showPage(page_->value() - 1); });
  page_ = new QSpinBox(&bar);
  page_->setButtonSymbols(QAbstractSpinBox::NoButtons);
  page_->setRange(1, pages_.count());
  page_->setSuffix(QStringLiteral(" of %1").arg(pages_.count()));
  page_->setKeyboardTracking(false);
  page_->setAlignment(Qt::AlignCenter);
  page_->setAccessibleName(QStringLiteral("Page"));
  bar.addWidget(page_);
  connect(page_, &QSpinBox::valueChanged, this, [this](int page) {
    showPage(page);
    area_->setFocus();
  });
  arrow("nav_next", QStringLiteral("Next page"), [this] { showPage(page_->value() + 1); });
  arrow("nav_last", QStringLiteral("Last page"), [this] { showPage(pages_.count()); });
}

void ReportPreview::addZoom(QToolBar& bar) {
  add(bar, nullptr, QStringLiteral("\u2212"), QKeySequence::ZoomOut, [this] {
    stepZoom(-1);
  })->setToolTip(QStringLiteral("Smaller"));
  zoom_ = new QComboBox(&bar);
  zoom_->addItem(QStringLiteral("Whole page"), kWholePage);
  zoom_->addItem(QStringLiteral("Page width"), kPageWidth);
  for (const int percent : kPercents) zoom_->addItem(QStringLiteral("%1 %").arg(percent), percent);
  zoom_->setMaxVisibleItems(zoom_->count());
  zoom_->setAccessibleName(QStringLiteral("Zoom"));
  bar.addWidget(zoom_);
  connect(zoom_, &QComboBox::currentIndexChanged, this, [this] { applyZoom(); });
  add(bar, nullptr, QStringLiteral("+"), QKeySequence::ZoomIn, [this] {
    stepZoom(1);
  })->setToolTip(QStringLiteral("Larger"));
}

// A bar that comes and goes with a page that is fitted beside it would never come to rest.
Qt::ScrollBarPolicy ReportPreview::scrollBarFor(int choice) const {
  if (choice > 0) return Qt::ScrollBarAsNeeded;
  const bool idle = choice == kWholePage && pages_.count() == 1;
  return idle ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn;
}

// What stands at the top of the view stays there; a page that fits begins there.
void ReportPreview::applyZoom() {
  const int choice = zoom_->currentData().toInt();
  area_->setVerticalScrollBarPolicy(scrollBarFor(choice));
  const QSize room = area_->viewport()->size();
  auto& bar = *area_->verticalScrollBar();
  const int page = choice == kWholePage ? page_->value() - 1 : view_->pageAt(bar.value());
  const double into = static_cast<double>(bar.value() - view_->topOf(page)) / view_->topOf(1);
  if (choice == kWholePage)
    view_->fit(room);
  else if (choice == kPageWidth)
    view_->fit({room.width(), QWIDGETSIZE_MAX});
  else
    view_->setZoom(choice / 100.0);
  bar.setValue(view_->topOf(page) + (choice == kWholePage ? 0 : qRound(into * view_->topOf(1))));
}

// From a fitted page to the next of the fixed steps.
void ReportPreview::stepZoom(int direction) {
  const double now = view_->zoom() * 100;
  int chosen = 0;
  for (const int percent : kPercents) {
    if (direction > 0 && percent > now + 1) {
      chosen = percent;
      break;
    }
    if (direction < 0 && percent < now - 1) chosen = percent;
  }
  if (chosen != 0) zoom_->setCurrentIndex(zoom_->findData(chosen));
}

void ReportPreview::showPage(int page) {
  const int shown = qBound(1, page, pages_.count());
  area_->verticalScrollBar()->setValue(view_->topOf(shown - 1));
  const QSignalBlocker quiet(page_);
  page_->setValue(shown);
}

// By whole pages where they fit, otherwise by what shows of one.
void ReportPreview::leaf(int direction) {
  const bool fits = view_->topOf(1) <= area_->viewport()->height();
  if (fits)
    showPage(page_->value() + direction);
  else
    area_->verticalScrollBar()->triggerAction(direction > 0 ? QAbstractSlider::SliderPageStepAdd
                                                            : QAbstractSlider::SliderPageStepSub);
}

void ReportPreview::followScrolling() {
  const QSignalBlocker quiet(page_);
  const int middle = area_->verticalScrollBar()->value() + area_->viewport()->height() / 3;
  page_->setValue(view_->pageAt(middle) + 1);
}

// Fine wheels turn in small parts of a notch.
void ReportPreview::turnWheel(int angle) {
  constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
  wheel_ += angle;
  for (; wheel_ >= kNotch; wheel_ -= kNotch) stepZoom(1);
  for (; wheel_ <= -kNotch; wheel_ += kNotch) stepZoom(-1);
}

bool ReportPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && zoom_->currentData().toInt() <= 0) applyZoom();
  if (event->type() == QEvent::Wheel) {
    const auto& wheel = static_cast<const QWheelEvent&>(*event);
    if (wheel.modifiers().testFlag(Qt::ControlModifier)) {
      turnWheel(wheel.angleDelta().y());
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace nautrel
