// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/combo_binding.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>

#include "look/bindings/text_binding.h"
#include "look/convert.h"

namespace nautrel {
namespace {

/// As the design names it, or the label before it.
QString nameOf(const QComboBox& box) {
  if (!box.accessibleName().isEmpty()) return box.accessibleName();
  for (const auto* label : box.window()->findChildren<QLabel*>())
    if (label->buddy() == &box) return label->text().remove('&');
  return {};
}

}  // namespace

ComboBinding::ComboBinding(ComboBox& box, QComboBox& widget)
    : Binding(box, widget), box_(box), out_(widget) {
  const bool free = box.style() == ComboBox::Style::FreeText;
  widget.setFocusPolicy(Qt::StrongFocus);
  widget.setEditable(free);
  widget.view()->setAccessibleName(nameOf(widget));
  if (free) {
    widget.setInsertPolicy(QComboBox::NoInsert);
    widget.setCompleter(nullptr);
    widget.lineEdit()->setAccessibleName(nameOf(widget));
    watch(*widget.lineEdit());
    connect(&widget, &QComboBox::editTextChanged, this, [this](const QString& text) {
      const auto edit = editBetween(toQt(box_.text()), text, out_.lineEdit()->cursorPosition());
      box_.userReplace(edit.start, edit.length, fromQt(edit.inserted));
    });
  }
  connect(&widget, &QComboBox::activated, this, [this](int index) { box_.userSelect(index); });
}

bool ComboBinding::filter(QEvent* event) {
  if (event->type() != QEvent::Wheel || box_.hasFocus()) return false;
  event->ignore();
  return true;
}

void ComboBinding::pushContent() {
  const auto& lines = box_.lines();
  while (out_.count() < static_cast<int>(lines.size()))
    out_.addItem(toQt(lines[static_cast<std::size_t>(out_.count())]));
  if (box_.style() == ComboBox::Style::FreeText) return showFreeText();
  showLine();
}

void ComboBinding::showLine() {
  if (out_.currentIndex() != box_.ListIndex()) out_.setCurrentIndex(box_.ListIndex());
}

// The caret keeps its distance from the end.
void ComboBinding::showFreeText() {
  auto& line = *out_.lineEdit();
  const auto fromEnd = line.text().size() - line.cursorPosition();
  showLine();
  const auto text = toQt(box_.text());
  if (out_.currentText() == text) return;
  out_.setEditText(text);
  line.setCursorPosition(static_cast<int>(qMax(text.size() - fromEnd, qsizetype(0))));
}

}  // namespace nautrel
