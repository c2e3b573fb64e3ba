#include "platform/qt/text_binding.h"

#include <QFocusEvent>
#include <QTextCursor>
#include <utility>

#include "platform/qt/convert.h"

namespace nautrel {
namespace {

/// A locked box looks like the window behind it, in a light theme and in a dark one.
void showLocked(QWidget& box, bool locked) {
  auto palette = box.palette();
  const auto role = locked ? QPalette::Window : QPalette::Base;
  const auto color = box.parentWidget()->palette().color(role);
  if (palette.color(QPalette::Base) == color) return;
  palette.setColor(QPalette::Base, color);
  box.setPalette(palette);
}

/// Start and end, as the toolkit counts them.
using Selection = std::pair<int, int>;

Selection selection(const TextBox& box, const QString& shown) {
  return {toQtPosition(shown, box.SelStart()),
          toQtPosition(shown, box.SelStart() + box.SelLength())};
}

Selection selection(const QLineEdit& edit) {
  if (!edit.hasSelectedText()) return {edit.cursorPosition(), edit.cursorPosition()};
  return {edit.selectionStart(), edit.selectionEnd()};
}

Selection selection(const QPlainTextEdit& edit) {
  return {edit.textCursor().selectionStart(), edit.textCursor().selectionEnd()};
}

void tell(TextBox& box, const QString& shown, const Selection& selection) {
  const auto start = fromQtPosition(shown, selection.first);
  box.userSelect(start, fromQtPosition(shown, selection.second) - start);
}

/// A press on a box whose rule-bound neighbour keeps the focus must not reach the box.
bool pressIsVoid(QEvent* event, const Control& control) {
  return event->type() == QEvent::MouseButtonPress && !control.hasFocus();
}

}  // namespace

LineEditBinding::LineEditBinding(TextBox& box, QLineEdit& edit)
    : Binding(box, edit), box_(box), edit_(edit) {
  edit.setReadOnly(box.locked());
  showLocked(edit, box.locked());
  connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
    box_.userEdit(fromQt(text), fromQtPosition(text, edit_.cursorPosition()));
  });
  connect(&edit, &QLineEdit::selectionChanged, this, &LineEditBinding::tellSelection);
  connect(&edit, &QLineEdit::cursorPositionChanged, this, &LineEditBinding::tellSelection);
}

// A box that loses the focus drops its selection on the screen alone.
void LineEditBinding::tellSelection() {
  if (edit_.hasFocus()) tell(box_, edit_.text(), selection(edit_));
}

bool LineEditBinding::filter(QEvent* event) {
  if (event->type() == QEvent::FocusIn) arrive(static_cast<QFocusEvent*>(event)->reason());
  return pressIsVoid(event, box_) || selectedOnArrival(event);
}

void LineEditBinding::pushContent() {
  const auto text = toQt(box_.text());
  const bool rewritten = edit_.text() != text;
  if (rewritten) edit_.setText(text);
  if (!rewritten && stamp_ == box_.selectionStamp() && !edit_.hasFocus()) return;
  stamp_ = box_.selectionStamp();
  // The head of a text that is too long for its box says more than its tail.
  headShown_ = !box_.hasFocus();
  if (headShown_)
    edit_.home(false);
  else
    showSelection();
}

void LineEditBinding::showSelection() {
  const auto wanted = selection(box_, edit_.text());
  if (wanted == selection(edit_)) return;
  if (wanted.second > wanted.first)
    edit_.setSelection(wanted.first, wanted.second - wanted.first);
  else
    edit_.setCursorPosition(wanted.first);
}

void LineEditBinding::arrive(Qt::FocusReason reason) {
  arrivingByMouse_ = reason == Qt::MouseFocusReason;
  stampOnArrival_ = box_.selectionStamp();
  headShown_ = false;
  arrivingByMouse_ ? tellSelection() : showSelection();
}

// A rule that selects the text when the box gets the focus does so for the mouse as well: the press
// that brought the focus sets no caret, and neither does what follows up to its release.
bool LineEditBinding::selectedOnArrival(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      pressing_ =
          std::exchange(arrivingByMouse_, false) && stampOnArrival_ != box_.selectionStamp();
      return pressing_;
    case QEvent::MouseMove:
      return pressing_;
    case QEvent::MouseButtonRelease:
      return std::exchange(pressing_, false);
    default:
      return false;
  }
}

PlainTextBinding::PlainTextBinding(TextBox& box, QPlainTextEdit& edit)
    : Binding(box, edit), box_(box), edit_(edit) {
  edit.setReadOnly(box.locked());
  edit.setTabChangesFocus(true);
  showLocked(edit, box.locked());
  watch(*edit.viewport());
  connect(&edit, &QPlainTextEdit::textChanged, this, [this] {
    const auto text = edit_.toPlainText();
    if (text == shown()) return;
    box_.userEdit(fromQt(text), fromQtPosition(text, edit_.textCursor().position()));
  });
  connect(&edit, &QPlainTextEdit::selectionChanged, this, &PlainTextBinding::tellSelection);
  connect(&edit, &QPlainTextEdit::cursorPositionChanged, this, &PlainTextBinding::tellSelection);
}

void PlainTextBinding::tellSelection() {
  tell(box_, edit_.toPlainText(), selection(edit_));
}

bool PlainTextBinding::filter(QEvent* event) {
  return pressIsVoid(event, box_);
}

void PlainTextBinding::pushContent() {
  const auto text = shown();
  if (edit_.toPlainText() != text) edit_.setPlainText(text);
  const auto wanted = selection(box_, text);
  if (wanted == selection(edit_)) return;
  auto cursor = edit_.textCursor();
  cursor.setPosition(wanted.first);
  cursor.setPosition(wanted.second, QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
}

// The widget knows one kind of line end only; the text keeps its own until it is edited.
QString PlainTextBinding::shown() const {
  return toQt(box_.text()).replace("\r\n", "\n").replace('\r', '\n');
}

}  // namespace nautrel
