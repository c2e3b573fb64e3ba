// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>

namespace nautrel {

inline constexpr double kTwipsPerPoint = 20;

/// The colours of what is printed, on white whatever the desktop's theme.
namespace paper {
inline const QColor kInk(0x1B, 0x2A, 0x34);
inline const QColor kQuiet(0x5B, 0x6B, 0x75);
inline const QColor kAccent(0x0F, 0x6E, 0x8C);
inline const QColor kHeadBand(0xE3, 0xEE, 0xF3);
inline const QColor kShade(0xF4, 0xF8, 0xFA);
}  // namespace paper

/// A font for painters whose unit is a twip.
inline QFont paperFont(double points, QFont::Weight weight = QFont::Normal) {
  QFont font;
  font.setPixelSize(qRound(points * kTwipsPerPoint));
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

inline void drawRule(QPainter& painter, const QRectF& across, double y, double points) {
  painter.fillRect(QRectF(across.left(), y, across.width(), points * kTwipsPerPoint),
                   paper::kAccent);
}

}  // namespace nautrel
