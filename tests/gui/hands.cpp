// SPDX-License-Identifier: GPL-2.0-or-later
#include "gui/hands.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>
#include <vector>

#include "look/convert.h"
#include "look/frame/form_view.h"

namespace nautrel {

Hands::Hands(Program& program, QtLooks& looks) : program_(program), looks_(looks) {
  QObject::connect(&loops_, &QTimer::timeout, &loops_, [this] { breakLoops(); });
}

void Hands::begin(unsigned chances) {
  dice = Dice(chances);
  did.str({});
  loops_.start(30);
}

// A menu or a dragged text that runs in a loop of its own would never come back.
void Hands::breakLoops() {
  if (letGo_) std::exchange(letGo_, nullptr)();
  if (auto* popup = QApplication::activePopupWidget()) popup->close();
}

/// A widget in sight, most often one of the window in front.
QWidget& Hands::target() {
  QWidget* from = looks_.topWindow();
  if (!dice.oneIn(4) && program_.activeForm() != nullptr)
    from = looks_.viewOf(*program_.activeForm())->root();
  if (auto* popup = QApplication::activePopupWidget(); popup != nullptr && !dice.oneIn(4))
    from = popup;
  std::vector<QWidget*> seen{from};
  for (auto* widget : from->findChildren<QWidget*>())
    if (!widget->visibleRegion().isEmpty() && !widget->isWindow()) seen.push_back(widget);
  return *dice.of(seen);
}

QPoint Hands::placeIn(const QWidget& widget) {
  const auto seen = widget.visibleRegion().boundingRect();
  auto place = seen.center();
  if (!seen.isEmpty() && dice.oneIn(2))
    place = seen.topLeft() + QPoint(dice.below(seen.width()), dice.below(seen.height()));
  return widget.mapTo(widget.window(), place);
}

void Hands::mouse() {
  static const char* const kinds[] = {"click", "click",        "click", "click", "click",
                                      "click", "double click", "drag",  "drag",  "wheel"};
  static const Qt::KeyboardModifiers helds[] = {Qt::NoModifier,    Qt::NoModifier,
                                                Qt::NoModifier,    Qt::NoModifier,
                                                Qt::ShiftModifier, Qt::ControlModifier};
  const auto& widget = target();
  auto* top = widget.window()->windowHandle();
  const auto place = placeIn(widget);
  const auto& other = dice.oneIn(2) ? widget : target();
  const auto end = other.window() == widget.window() ? placeIn(other) : place;
  const auto button = dice.oneIn(6) ? Qt::RightButton : Qt::LeftButton;
  const auto held = dice.of(helds);
  const QString kind = dice.of(kinds);
  did << fromQt(kind) << " on " << fromQt(widget.objectName()) << " ("
      << widget.metaObject()->className() << ") at " << place.x() << ',' << place.y() << " to "
      << end.x() << ',' << end.y() << ", button " << button << ", held " << held.toInt();
  if (kind == "click") QTest::mouseClick(top, button, held, place);
  if (kind == "double click") QTest::mouseDClick(top, button, held, place);
  if (kind == "drag") {
    QTest::mousePress(top, button, held, place);
    letGo_ = [=] { QTest::mouseRelease(top, button, held, end); };
    QTest::mouseMove(top, (place + end) / 2);
    if (letGo_) QTest::mouseMove(top, end);
    if (letGo_) std::exchange(letGo_, nullptr)();
  }
  if (kind == "wheel") {
    QWheelEvent wheel(place, top->mapToGlobal(place), {}, {0, dice.oneIn(2) ? 120 : -120},
                      Qt::NoButton, held, Qt::NoScrollPhase, false);
    QApplication::sendEvent(top, &wheel);
  }
}

void Hands::key() {
  static const Qt::Key often[] = {
      Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
      Qt::Key_Escape,    Qt::Key_Space,  Qt::Key_Up,      Qt::Key_Down,   Qt::Key_Left,
      Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,     Qt::Key_PageUp, Qt::Key_PageDown,
      Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Insert,  Qt::Key_F4,     Qt::Key_F6,
      Qt::Key_F10,       Qt::Key_Minus,  Qt::Key_Menu};
  static const Qt::KeyboardModifiers held[] = {
      Qt::NoModifier,    Qt::NoModifier,
      Qt::NoModifier,    Qt::NoModifier,
      Qt::ShiftModifier, Qt::ControlModifier,
      Qt::AltModifier,   Qt::ControlModifier | Qt::ShiftModifier};
  const int other = dice.oneIn(8) ? Qt::Key_F1 + dice.below(4) : Qt::Key_0 + dice.below(43);
  const auto code = dice.oneIn(3) ? static_cast<Qt::Key>(other) : dice.of(often);
  const auto modifiers = dice.of(held);
  did << "key " << fromQt(QKeySequence(QKeyCombination(modifiers, code)).toString());
  QTest::keyClick(window(), code, modifiers);
}

void Hands::type() {
  const QString text = dice.of(QString("1,12,2,31,1999,3.5,a,land,x y,-1").split(','));
  did << "type " << fromQt(text);
  for (const auto character : text) QTest::keyClick(window(), character.toLatin1());
}

/// A text comes in by another way than the keyboard.
void Hands::bring() {
  const auto text = dice.of(QStringList{"1", "12", "0", "3.5", "a", "Land", QString(300, 'x'), " ",
                                        "one\r\ntwo\n", "\n", "tab\tbell\a", "", "Äöß",
                                        QString::fromUtf8("\U0001F41F\U0001F420")});
  const auto& widget = target();
  auto* receiver = QGuiApplication::focusObject();
  const int kind = dice.below(3);
  did << "bring " << fromQt(text.left(20)) << " way " << kind << ' ' << fromQt(widget.objectName());
  if (kind == 0) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(window(), Qt::Key_V, Qt::ControlModifier);
  } else if (kind == 1 && receiver != nullptr) {
    QInputMethodEvent draft(QStringLiteral("k"), {});
    QInputMethodEvent commit;
    if (!dice.oneIn(4)) commit.setCommitString(text);
    QApplication::sendEvent(receiver, &draft);
    QApplication::sendEvent(receiver, &commit);
  } else {
    drop(*widget.window()->windowHandle(), placeIn(widget), text);
  }
}

void Hands::drop(QWindow& top, QPoint place, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDragLeaveEvent leave;
  QApplication::sendEvent(&top, &enter);
  QApplication::sendEvent(&top, &move);
  QApplication::sendEvent(&top, move.isAccepted() ? static_cast<QEvent*>(&drop) : &leave);
}

}  // namespace nautrel
