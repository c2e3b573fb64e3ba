// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProxyStyle>

namespace nautrel {

/// What the program asks of the desktop's own style: text that can be read whatever the desktop's
/// colours, a focus that is always seen, and no icons on the buttons of dialogs.
class LookStyle : public QProxyStyle {
 public:
  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
  void polish(QWidget* widget) override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace nautrel
