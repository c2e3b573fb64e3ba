#pragma once

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QSize>
#include <QString>

namespace nautrel {

/// A loaded picture, or the number of the failure that left it empty.
struct Picture {
  QImage image;
  /// The picture's own size in pixels, which the image may fall short of or exceed.
  QSize size;
  /// 0, 53 (no such file), 75 (may not be read) or 481 (no picture).
  int error = 0;
};

/// Loads bmp, dib, jpg, gif, wmf and emf by what is in the file, whatever its name says. A picture
/// is decoded once as long as its file stays as it is.
class Pictures {
 public:
  /// No image gets larger than `largest`, in device pixels: what a screen can show at most.
  explicit Pictures(QSize largest);

  Picture load(const QString& path);

 private:
  struct Known {
    QDateTime changed;
    qint64 length;
    Picture picture;
  };

  QSize largest_;
  QCache<QString, Known> known_;
};

}  // namespace nautrel
