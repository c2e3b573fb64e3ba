// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/look_style.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace nautrel {

// The toolkit sets the attribute at its own Tab key alone, and that key is the model's.
void LookStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (widget->isWindow()) widget->setAttribute(Qt::WA_KeyboardFocusChange);
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

// Some styles mark a focused button by the colour of its edge alone, and a page's tab not at all.
void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (!(option->state & State_HasFocus)) return;
  if (element != CE_PushButton && element != CE_TabBarTab) return;
  QStyleOptionFocusRect ring;
  ring.QStyleOption::operator=(*option);
  ring.state &= ~State_Selected;
  ring.rect = element == CE_PushButton ? subElementRect(SE_PushButtonFocusRect, option, widget)
                                       : option->rect.adjusted(4, 4, -4, -4);
  drawPrimitive(PE_FrameFocusRect, &ring, painter, widget);
}

// One ring for all, as dark as the text: those of the styles are faint or stippled.
void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  if (element != PE_FrameFocusRect)
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool selected = (option->state & State_Selected) != 0;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(
      QPen(option->palette.color(selected ? QPalette::HighlightedText : QPalette::WindowText), 1));
  painter->setBrush(Qt::NoBrush);
  painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
  painter->restore();
}

}  // namespace nautrel
