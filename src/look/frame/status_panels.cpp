// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/status_panels.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QTime>

#include "look/convert.h"

namespace nautrel {

StatusPanels::StatusPanels(const StatusBar& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 1, 6, 1);
  row->setSpacing(6);
  caps_ = addPanel(1, 0);
  insert_ = addPanel(2, 0);
  text_ = addPanel(3, 1);
  date_ = addPanel(4, 0);
  time_ = addPanel(5, 0);
  caps_->setAccessibleName(QStringLiteral("Caps Lock"));
  insert_->setAccessibleName(QStringLiteral("Insert"));
  qApp->installEventFilter(this);
  connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
  timer_.start(250);
  tick();
}

QLabel* StatusPanels::addPanel(int panel, int stretch) {
  const auto& model = model_.panels()[static_cast<std::size_t>(panel - 1)];
  auto* label = new QLabel(toQt(model.text), this);
  label->setTextFormat(Qt::PlainText);
  label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  label->setToolTip(toQt(model.toolTip));
  label->setMargin(2);
  if (stretch == 0) label->setAlignment(Qt::AlignCenter);
  layout()->addWidget(label);
  static_cast<QHBoxLayout*>(layout())->setStretchFactor(label, stretch);
  return label;
}

void StatusPanels::setText(const QString& text) {
  text_->setText(text);
}

void StatusPanels::showState(QLabel& panel, bool on) const {
  if (panel.isEnabled() != on) panel.setEnabled(on);
}

void StatusPanels::tick() {
  const auto now = QDateTime::currentDateTime();
  const QLocale locale;
  date_->setText(locale.toString(now.date(), QLocale::ShortFormat));
  time_->setText(locale.toString(now.time(), QLocale::ShortFormat));
  showState(*caps_, capsLockIsOn());
  showState(*insert_, insertOn_);
}

// One press of the key passes here once for every receiver on its way; its time stamp counts it
// once.
bool StatusPanels::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
  auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() == Qt::Key_Insert && key->modifiers() == Qt::NoModifier && !key->isAutoRepeat() &&
      key->timestamp() != lastInsert_) {
    lastInsert_ = key->timestamp();
    insertOn_ = !insertOn_;
  }
  if (key->key() == Qt::Key_Insert || key->key() == Qt::Key_CapsLock)
    QTimer::singleShot(30, this, [this] { tick(); });
  return false;
}

}  // namespace nautrel
