// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "platform/picture.h"

namespace nautrel {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

/// A colour of the system is 0x00BBGGRR.
inline QColor toQt(long color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                static_cast<int>((color >> 16) & 0xFF));
}
inline long fromQt(const QColor& color) {
  return color.red() | (color.green() << 8) | (color.blue() << 16);
}

/// Fifteen twips to the pixel of an unscaled screen.
inline constexpr int kTwipsPerPixel = 15;
/// What is beyond all screens is taken to the nearest measure that a window can have.
inline int toPixels(double twips) {
  constexpr double kFarthest = 16'000'000;
  return qRound(qBound(-kFarthest, twips / kTwipsPerPixel, kFarthest));
}
inline double toTwips(int pixels) {
  return pixels * kTwipsPerPixel;
}

/// Between caret positions that count characters and those of a QString, which counts UTF-16.
/// @{
int toQtPosition(const QString& text, std::size_t characters);
std::size_t fromQtPosition(const QString& text, int position);
/// @}

/// The one edit that made a text another: what came in for `length` characters from `start` on,
/// both counted in characters.
struct TextEdit {
  std::size_t start = 0;
  std::size_t length = 0;
  QString inserted;
};
/// `caret` is where the edit left the caret in the new text.
TextEdit editBetween(const QString& before, const QString& after, int caret);

}  // namespace nautrel
