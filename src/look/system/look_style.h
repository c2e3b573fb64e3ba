// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProxyStyle>

namespace nautrel {

/// What the program asks of the desktop's own style: the focus is always to be seen, and no icons
/// on the buttons of dialogs.
class LookStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::polish;
  void polish(QWidget* widget) override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace nautrel
