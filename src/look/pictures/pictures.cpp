// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "look/pictures/metafile.h"

namespace nautrel {
namespace {

constexpr int kKnownBytes = 64 << 20;
constexpr qint64 kLongestMetafile = 32 << 20;
// A few bytes can claim any size; decoding such a picture would keep the diver waiting for nothing.
constexpr qint64 kMostPixels = 120'000'000;

QByteArray formatOf(const QByteArray& head) {
  if (head.startsWith("BM")) return "bmp";
  if (head.startsWith("\xFF\xD8\xFF")) return "jpg";
  if (head.startsWith("GIF8")) return "gif";
  return {};
}

// What a bitmap cut short does not fill stays blank; the other kinds see to that themselves.
QImage blank(QSize size, QImage::Format format) {
  QImage image(size, format);
  if (image.pixelFormat().colorModel() == QPixelFormat::Indexed)
    image.fill(0U);
  else
    image.fill(Qt::white);
  return image;
}

// Some kinds tell the size of their first part alone.
QImage fitted(const QImage& image, QSize largest) {
  if (image.width() <= largest.width() && image.height() <= largest.height()) return image;
  return image.scaled(image.size().scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1}),
                      Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage decode(QFile& file, const QByteArray& format, QSize largest) {
  QImageReader reader(&file, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels) return {};
  // The reader scales before it turns.
  const bool onItsSide = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  const QSize room = onItsSide ? largest.transposed() : largest;
  if (size.width() > room.width() || size.height() > room.height())
    reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
  QImage image;
  if (format == "bmp") image = blank(size, reader.imageFormat());
  if (!reader.read(&image)) return {};
  return fitted(image, largest);
}

QImage readPicture(QFile& file, QSize largest) {
  constexpr qint64 kHead = 64;
  const QByteArray head = file.peek(kHead);
  if (const QByteArray format = formatOf(head); !format.isEmpty())
    return decode(file, format, largest);
  const MetafileKind kind = metafileKind(head);
  if (kind == MetafileKind::None || file.size() > kLongestMetafile) return {};
  return drawMetafile(file.readAll(), kind, largest);
}

}  // namespace

Pictures::Pictures(QSize largest) : largest_(largest), known_(kKnownBytes) {}

QImage Pictures::load(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists()) raise(FileNotFound);
  // A pipe or a device would be waited for, a folder is none either.
  if (!file.isFile()) raise(InvalidPicture);
  const QString place = file.absoluteFilePath();
  const Known* known = known_.object(place);
  const bool stands =
      known != nullptr && known->changed == file.lastModified() && known->length == file.size();
  const QImage image = stands ? known->image : loadAnew(place, file.lastModified());
  if (image.isNull()) raise(InvalidPicture);
  return image;
}

QImage Pictures::loadAnew(const QString& path, const QDateTime& changed) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) raise(FileAccess);
  const QImage image = readPicture(file, largest_);
  known_.insert(path, new Known{changed, file.size(), image}, image.sizeInBytes() + 1);
  return image;
}

}  // namespace nautrel
