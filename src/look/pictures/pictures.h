// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QSize>
#include <QString>

#include "platform/errors.h"

namespace nautrel {

/// Loads bmp, dib, jpg, gif, wmf and emf by what is in the file, whatever its name says. A picture
/// is decoded once as long as its file stays as it is.
class Pictures {
 public:
  /// No image gets larger than `largest`, in device pixels: what a screen can show at most.
  explicit Pictures(QSize largest);

  /// Raises 53 (no such file), 75 (may not be read), 481 (no picture).
  QImage load(const QString& path);

 private:
  struct Known {
    QDateTime changed;
    qint64 length;
    QImage image;  // null for what is no picture
  };

  QImage loadAnew(const QString& path, const QDateTime& changed);

  QSize largest_;
  QCache<QString, Known> known_;
};

}  // namespace nautrel
