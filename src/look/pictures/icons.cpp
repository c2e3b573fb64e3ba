// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/icons.h"

#include <QGuiApplication>

#include "look/convert.h"

namespace nautrel {

QIcon namedIcon(std::string_view name) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64})
    icon.addFile(QStringLiteral(":/icons/%1_%2.png").arg(toQt(name)).arg(size), {size, size});
  return icon;
}

// The rendered sizes stand beside each other as name.png, name@2x.png, name@3x.png.
QPixmap namedPicture(const QString& name) {
  const qreal scale = qGuiApp->devicePixelRatio();
  const int rendered = scale > 2 ? 3 : scale > 1 ? 2 : 1;
  const auto suffix = rendered == 1 ? QString() : QStringLiteral("@%1x").arg(rendered);
  QPixmap picture(QStringLiteral(":/pictures/%1%2.png").arg(name, suffix));
  picture.setDevicePixelRatio(rendered);
  return picture;
}

}  // namespace nautrel
