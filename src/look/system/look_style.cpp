// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/look_style.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "look/contrast.h"

namespace nautrel {
namespace {

using Role = QPalette::ColorRole;

void makeReadable(QPalette& palette, QPalette::ColorGroup group, Role role, Role against) {
  const auto color = palette.color(group, role);
  const auto better = readable(color, palette.color(group, against), kReadable);
  if (better != color) palette.setColor(group, role, better);
}

/// Quarters of a turn from the arrow that points up; -1 for what is no arrow.
int turnOf(QStyle::PrimitiveElement element) {
  constexpr QStyle::PrimitiveElement kArrows[] = {
      QStyle::PE_IndicatorArrowUp, QStyle::PE_IndicatorArrowRight, QStyle::PE_IndicatorArrowDown,
      QStyle::PE_IndicatorArrowLeft};
  const auto* found = std::find(std::begin(kArrows), std::end(kArrows), element);
  return found == std::end(kArrows) ? -1 : static_cast<int>(found - kArrows);
}

// As dark as the text, where some styles let the ground shine through.
void drawArrow(int turn, const QStyleOption& option, QPainter& painter) {
  const double half = std::min({option.rect.width() / 2.0, option.rect.height() / 2.0, 4.0});
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(
      option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  painter.translate(QRectF(option.rect).center());
  painter.rotate(90 * turn);
  painter.drawPolygon(QPolygonF({{-half, half / 2}, {0, -half / 2}, {half, half / 2}}));
  painter.restore();
}

}  // namespace

// The ground of what is selected gives way, so that its text stays as the desktop has it.
void LookStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  constexpr std::pair<Role, Role> kPairs[] = {{QPalette::Highlight, QPalette::HighlightedText},
                                              {QPalette::WindowText, QPalette::Window},
                                              {QPalette::ButtonText, QPalette::Button},
                                              {QPalette::Text, QPalette::AlternateBase},
                                              {QPalette::Text, QPalette::Base},
                                              {QPalette::Link, QPalette::Base},
                                              {QPalette::ToolTipText, QPalette::ToolTipBase}};
  for (const auto group : {QPalette::Active, QPalette::Inactive})
    for (const auto& [role, against] : kPairs) makeReadable(palette, group, role, against);
}

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
  if (const int turn = turnOf(element); turn >= 0) return drawArrow(turn, *option, *painter);
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
