// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/reports/template_picture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "look/convert.h"
#include "printing/report_fault.h"

namespace nautrel {
namespace {

constexpr qint64 kMostBytes = 32 << 20;
constexpr qint64 kMostPixels = 50'000'000;

[[noreturn]] void refuse(const QUrl& name, const char* why) {
  constexpr int kShown = 100;
  throw ReportFault{"The picture \"" + fromQt(name.toDisplayString().left(kShown)) + "\" " + why};
}

/// The file that the name means; a link is followed before it is looked where it stands.
QString fileIn(const QString& folder, const QUrl& name) {
  static constexpr const char* kElsewhere =
      "stands elsewhere. A template shows pictures from the folder of the program alone.";
  if (!name.isRelative() && !name.isLocalFile()) refuse(name, kElsewhere);
  const QString path = name.isLocalFile() ? name.toLocalFile() : name.path();
  const QString home = QFileInfo(folder).canonicalFilePath();
  const QString place = QFileInfo(QDir(home).absoluteFilePath(path)).canonicalFilePath();
  if (place.isEmpty()) refuse(name, "is not there.");
  if (home.isEmpty() || !place.startsWith(home + '/')) refuse(name, kElsewhere);
  if (!QFileInfo(place).isFile()) refuse(name, "is no file.");
  return place;
}

QImage decode(QIODevice& device, const QUrl& name) {
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  static const QList<QByteArray> kKinds = {"bmp", "gif", "jpeg", "jpg", "png"};
  if (device.size() > kMostBytes || !kKinds.contains(reader.format()))
    refuse(name, "is none that can be shown (bmp, gif, jpg or png).");
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels)
    refuse(name, "is too large.");
  reader.setAutoTransform(true);
  QImage image = reader.read();
  if (image.isNull()) refuse(name, "cannot be read.");
  return image;
}

}  // namespace

QImage loadTemplatePicture(const QString& folder, const QUrl& name) {
  if (name.scheme() == QStringLiteral("data")) {
    const QByteArray text = name.path(QUrl::FullyEncoded).toUtf8();
    auto bytes = QByteArray::fromBase64(text.mid(text.indexOf(',') + 1));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return decode(buffer, name);
  }
  QFile file(fileIn(folder, name));
  if (!file.open(QIODevice::ReadOnly)) refuse(name, "cannot be read.");
  return decode(file, name);
}

}  // namespace nautrel
