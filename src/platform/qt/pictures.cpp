#include "platform/qt/pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "platform/errors.h"
#include "platform/qt/metafile.h"

namespace nautrel {
namespace {

constexpr int kKnownBytes = 32 << 20;
constexpr qint64 kLongestMetafile = 32 << 20;
// A few bytes can claim any size; decoding such a picture would keep the diver waiting for nothing.
constexpr qint64 kMostPixels = 120'000'000;

Picture failed(ErrorNumber number) {
  return {{}, {}, number};
}

QByteArray formatOf(const QByteArray& head) {
  if (head.startsWith("BM")) return "bmp";
  if (head.startsWith("\xFF\xD8\xFF")) return "jpg";
  if (head.startsWith("GIF8")) return "gif";
  return {};
}

Picture decode(QFile& file, const QByteArray& format, QSize largest) {
  QImageReader reader(&file, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
  QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels)
    return failed(InvalidPicture);
  // The reader scales before it turns.
  const bool onItsSide = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  const QSize room = onItsSide ? largest.transposed() : largest;
  if (size.width() > room.width() || size.height() > room.height())
    reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
  const QImage image = reader.read();
  if (image.isNull()) return failed(InvalidPicture);
  return {image, onItsSide ? size.transposed() : size, 0};
}

Picture draw(const QByteArray& bytes, MetafileKind kind, QSize largest) {
  const QImage image = drawMetafile(bytes, kind, largest);
  if (image.isNull()) return failed(InvalidPicture);
  const QSize size = metafileSize(bytes, kind);
  return {image, size.isEmpty() ? image.size() : size, 0};
}

Picture read(const QString& path, QSize largest) {
  constexpr qint64 kHead = 64;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return failed(FileAccess);
  const QByteArray head = file.peek(kHead);
  if (const QByteArray format = formatOf(head); !format.isEmpty())
    return decode(file, format, largest);
  const MetafileKind kind = metafileKind(head);
  if (kind == MetafileKind::None || file.size() > kLongestMetafile) return failed(InvalidPicture);
  return draw(file.readAll(), kind, largest);
}

}  // namespace

Pictures::Pictures(QSize largest) : largest_(largest), known_(kKnownBytes) {}

Picture Pictures::load(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists()) return failed(FileNotFound);
  // A pipe or a device would be waited for, a folder is none either.
  if (!file.isFile()) return failed(InvalidPicture);
  const QString place = file.absoluteFilePath();
  const Known* known = known_.object(place);
  if (known != nullptr && known->changed == file.lastModified() && known->length == file.size())
    return known->picture;
  const Picture picture = read(place, largest_);
  // Leave to read a file can come without a change of the file.
  if (picture.error != FileAccess)
    known_.insert(place, new Known{file.lastModified(), file.size(), picture},
                  picture.image.sizeInBytes() + 1);
  return picture;
}

}  // namespace nautrel
