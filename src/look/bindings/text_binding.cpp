// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/text_binding.h"

#include <QFocusEvent>
#include <QTextCursor>
#include <QTextDocument>
#include <limits>
#include <utility>

#include "look/convert.h"

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

constexpr QChar kBreak = QChar::ParagraphSeparator;

/// What the widget makes a line end of.
bool breaksLine(QChar character) {
  return character == '\n' || character == '\r' || character == QChar(0xFDD0) ||
         character == QChar(0xFDD1);
}

bool isCrOfCrLf(const QString& text, qsizetype place) {
  return text.mid(place, 2) == QStringLiteral("\r\n");
}

// CR LF are two characters of the text, and one on the screen.
std::size_t charactersInText(const QString& text, std::size_t shown) {
  std::size_t count = 0;
  for (qsizetype i = 0; i < text.size() && shown > 0; ++i) {
    if (text.at(i).isLowSurrogate()) continue;
    ++count;
    if (!isCrOfCrLf(text, i)) --shown;
  }
  return count;
}

std::size_t charactersShown(const QString& text, std::size_t inText) {
  std::size_t count = 0;
  for (qsizetype i = 0; i < text.size() && inText > 0; ++i) {
    if (text.at(i).isLowSurrogate()) continue;
    --inText;
    if (!isCrOfCrLf(text, i)) ++count;
  }
  return count;
}

/// A press on a box whose rule-bound neighbour keeps the focus must not reach the box.
bool pressIsVoid(QEvent* event, const Control& control) {
  return event->type() == QEvent::MouseButtonPress && !control.hasFocus();
}

}  // namespace

LineEditBinding::LineEditBinding(TextBox& box, QLineEdit& edit)
    : Binding(box, edit), box_(box), edit_(edit) {
  edit.setReadOnly(box.locked());
  edit.setMaxLength(std::numeric_limits<int>::max());
  showLocked(edit, box.locked());
  connect(&edit, &QLineEdit::textEdited, this, &LineEditBinding::edited);
  connect(&edit, &QLineEdit::selectionChanged, this, &LineEditBinding::tellSelection);
  connect(&edit, &QLineEdit::cursorPositionChanged, this, &LineEditBinding::tellSelection);
}

void LineEditBinding::edited(const QString& text) {
  const auto edit = editBetween(toQt(box_.text()), text, edit_.cursorPosition());
  box_.userReplace(edit.start, edit.length, fromQt(edit.inserted));
}

// A box that loses the focus drops its selection on the screen alone.
void LineEditBinding::tellSelection() {
  if (!edit_.hasFocus()) return;
  const auto shown = edit_.text();
  const auto [start, end] = selection(edit_);
  const auto first = fromQtPosition(shown, start);
  box_.userSelect(first, fromQtPosition(shown, end) - first);
}

void LineEditBinding::restyle() {
  showLocked(edit_, box_.locked());
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
  connect(&edit, &QPlainTextEdit::textChanged, this, &PlainTextBinding::edited);
  connect(&edit, &QPlainTextEdit::selectionChanged, this, &PlainTextBinding::tellSelection);
  connect(&edit, &QPlainTextEdit::cursorPositionChanged, this, &PlainTextBinding::tellSelection);
}

void PlainTextBinding::tellSelection() {
  const auto text = toQt(box_.text());
  const auto shown = edit_.document()->toRawText();
  const auto [start, end] = selection(edit_);
  const auto first = charactersInText(text, fromQtPosition(shown, start));
  box_.userSelect(first, charactersInText(text, fromQtPosition(shown, end)) - first);
}

void PlainTextBinding::restyle() {
  showLocked(edit_, box_.locked());
}

bool PlainTextBinding::filter(QEvent* event) {
  return pressIsVoid(event, box_);
}

// The widget knows one kind of line end only, and its plain text loses more than that; so of its
// text nothing but the part that was edited goes into the model's.
void PlainTextBinding::edited() {
  const auto before = shown();
  const auto after = edit_.document()->toRawText();
  if (after == before) return;
  auto edit = editBetween(before, after, edit_.textCursor().position());
  const auto text = toQt(box_.text());
  const auto start = charactersInText(text, edit.start);
  const auto length = charactersInText(text, edit.start + edit.length) - start;
  edit.inserted.replace(kBreak, '\n').replace(QChar(QChar::LineSeparator), '\n');
  box_.userReplace(start, length, fromQt(edit.inserted));
}

void PlainTextBinding::pushContent() {
  const auto text = shown();
  if (edit_.document()->toRawText() != text) edit_.setPlainText(text);
  const auto place = [&](std::size_t characters) {
    return toQtPosition(text, charactersShown(toQt(box_.text()), characters));
  };
  const Selection wanted(place(box_.SelStart()), place(box_.SelStart() + box_.SelLength()));
  if (wanted == selection(edit_)) return;
  auto cursor = edit_.textCursor();
  cursor.setPosition(wanted.first);
  cursor.setPosition(wanted.second, QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
}

QString PlainTextBinding::shown() const {
  auto text = toQt(box_.text());
  text.replace("\r\n", "\n");
  for (auto& character : text)
    if (breaksLine(character)) character = kBreak;
  return text;
}

}  // namespace nautrel
