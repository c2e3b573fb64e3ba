// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/keyboard.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>

#include "look/convert.h"
#include "look/frame/main_frame.h"
#include "look/frame/qt_looks.h"
#include "platform/program.h"

namespace nautrel {
namespace {

bool pastesHere(const QWidget& widget) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return !edit->isReadOnly();
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) return !edit->isReadOnly();
  const auto* combo = qobject_cast<const QComboBox*>(&widget);
  return combo != nullptr && combo->isEditable();
}

/// The character that is pressed together with Alt alone.
std::string accessKey(const QKeyEvent& key) {
  const auto code = static_cast<char32_t>(key.key());
  if (key.modifiers() != Qt::AltModifier || code <= U' ' || code >= Qt::Key_Escape) return {};
  return fromQt(QString::fromUcs4(&code, 1));
}

bool typesWithAlt(const QKeyEvent& key) {
  const auto modifiers = key.modifiers() & ~Qt::ShiftModifier;
  return modifiers == Qt::AltModifier && !key.text().isEmpty() && key.text().at(0).isPrint();
}

}  // namespace

Keyboard::Keyboard(Program& program, const QtLooks& looks) : program_(program), looks_(looks) {
  qApp->installEventFilter(this);
}

bool Keyboard::belongsToFrame(const QWidget& widget) const {
  const auto* top = looks_.topWindow();
  return top != nullptr && widget.window() == top &&
         qobject_cast<const QMenuBar*>(&widget) == nullptr;
}

// A key comes by here on its way to the window of the system first; only the widget behind it can
// say what it wants.
bool Keyboard::eventFilter(QObject* watched, QEvent* event) {
  const bool announces = event->type() == QEvent::ShortcutOverride;
  if (!announces && event->type() != QEvent::KeyPress) return false;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || !belongsToFrame(*widget)) return false;
  auto& key = *static_cast<QKeyEvent*>(event);
  return announces ? announced(*widget, key) : pressed(key);
}

// A box keeps Ctrl+V for pasting, and leaves the menu every other command of its bar, also those
// that the toolkit's boxes know a use of their own for. The access keys of the window in front come
// before those of the bar.
bool Keyboard::announced(const QWidget& widget, QKeyEvent& key) const {
  const auto access = accessKey(key);
  if (const auto* form = program_.activeForm();
      form != nullptr && !access.empty() && form->answersAccessKey(access)) {
    key.accept();
    return true;
  }
  const QKeySequence keys(key.keyCombination());
  const auto* frame = looks_.mainFrame();
  if (frame == nullptr || !frame->isShortcut(keys)) return false;
  if (keys == QKeySequence(Qt::CTRL | Qt::Key_V) && pastesHere(widget)) return false;
  key.ignore();
  return true;
}

bool Keyboard::pressed(const QKeyEvent& key) const {
  auto* form = program_.activeForm();
  const auto access = accessKey(key);
  if (form != nullptr && !access.empty() && form->userAccessKey(access)) return true;
  return typesWithAlt(key);
}

}  // namespace nautrel
