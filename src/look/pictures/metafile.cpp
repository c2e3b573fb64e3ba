// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/metafile.h"

#include <QtEndian>
#include <cmath>

namespace nautrel {
namespace {

constexpr double kScreenDpi = 96;
constexpr double kHundredthsOfMillimetrePerInch = 2540;

template <class Number>
Number numberAt(const QByteArray& bytes, qsizetype offset) {
  if (offset + static_cast<qsizetype>(sizeof(Number)) > bytes.size()) return 0;
  return qFromLittleEndian<Number>(bytes.constData() + offset);
}

QSize pixels(double width, double height, double unitsPerInch) {
  if (unitsPerInch <= 0) return {};
  const double scale = kScreenDpi / unitsPerInch;
  const QSize size(static_cast<int>(std::lround(std::abs(width) * scale)),
                   static_cast<int>(std::lround(std::abs(height) * scale)));
  return size.isEmpty() ? QSize() : size;
}

// Units of a metafile that names none.
constexpr int kTwipsPerInch = 1440;

constexpr qsizetype kPlaceableHeader = 22;
constexpr qsizetype kHeader = 18;

/// Two numbers of a record, the vertical one before the horizontal.
QPoint pointAt(const QByteArray& bytes, qsizetype offset) {
  return {numberAt<qint16>(bytes, offset + 2), numberAt<qint16>(bytes, offset)};
}

std::optional<QRect> windowOfRecords(const QByteArray& bytes, qsizetype offset) {
  constexpr quint16 kSetWindowOrigin = 0x20B;
  constexpr quint16 kSetWindowExtent = 0x20C;
  constexpr qsizetype kRecordHead = 6;
  QPoint origin;
  while (offset + kRecordHead <= bytes.size()) {
    const auto words = numberAt<quint32>(bytes, offset);
    const auto function = numberAt<quint16>(bytes, offset + 4);
    const QPoint point = pointAt(bytes, offset + kRecordHead);
    if (function == kSetWindowOrigin) origin = point;
    if (function == kSetWindowExtent && point.x() != 0 && point.y() != 0)
      return QRect(origin, QSize(point.x(), point.y()));
    if (words < 3) break;
    offset += qsizetype{words} * 2;
  }
  return {};
}

}  // namespace

MetafileKind metafileKind(const QByteArray& head) {
  constexpr quint32 kEnhancedSignature = 0x464D4520;
  if (numberAt<quint32>(head, 0) == 1 && numberAt<quint32>(head, 40) == kEnhancedSignature)
    return MetafileKind::Enhanced;
  const auto type = numberAt<quint16>(head, 0);
  const bool plain = (type == 1 || type == 2) && numberAt<quint16>(head, 2) == 9;
  return placeableLength(head) > 0 || plain ? MetafileKind::Windows : MetafileKind::None;
}

qsizetype placeableLength(const QByteArray& bytes) {
  return numberAt<quint32>(bytes, 0) == 0x9AC6CDD7 ? kPlaceableHeader : 0;
}

std::optional<QRect> metafileWindow(const QByteArray& bytes) {
  const qsizetype placeable = placeableLength(bytes);
  if (placeable == 0) return windowOfRecords(bytes, kHeader);
  const auto side = [&](int index) -> int { return numberAt<qint16>(bytes, 6 + 2 * index); };
  const QRect window(side(0), side(1), side(2) - side(0), side(3) - side(1));
  if (window.width() != 0 && window.height() != 0) return window;
  return windowOfRecords(bytes, placeable + kHeader);
}

QSize metafileSize(const QByteArray& bytes, MetafileKind kind) {
  if (kind == MetafileKind::Enhanced) {
    const auto side = [&](int index) -> double { return numberAt<qint32>(bytes, 24 + 4 * index); };
    return pixels(side(2) - side(0), side(3) - side(1), kHundredthsOfMillimetrePerInch);
  }
  const std::optional<QRect> window = metafileWindow(bytes);
  if (!window) return {};
  const int units = placeableLength(bytes) > 0 ? numberAt<quint16>(bytes, 14) : kTwipsPerInch;
  return pixels(window->width(), window->height(), units);
}

}  // namespace nautrel
