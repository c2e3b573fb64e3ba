// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include "look/convert.h"

namespace nautrel {

QIcon namedIcon(std::string_view name) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64})
    icon.addFile(QStringLiteral(":/icons/%1_%2.png").arg(toQt(name)).arg(size), {size, size});
  return icon;
}

namespace {

/// Draws a sign in the colour that the desktop has for it at that moment.
class SignEngine : public QIconEngine {
 public:
  explicit SignEngine(QIcon drawn) : drawn_(std::move(drawn)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, pixmap(rect.size() * scale, mode, state));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    auto sign = drawn_.pixmap(size, 1.0);
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    QPainter painter(&sign);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(sign.rect(), QGuiApplication::palette().color(group, QPalette::ButtonText));
    return sign;
  }
  QIconEngine* clone() const override { return new SignEngine(*this); }

 private:
  QIcon drawn_;
};

}  // namespace

QIcon namedSign(std::string_view name) {
  return QIcon(new SignEngine(namedIcon(name)));
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
