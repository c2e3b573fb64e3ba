// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/picture_view.h"

#include <QPainter>

#include "look/pictures/icons.h"
#include "look/pictures/image_picture.h"

namespace nautrel {

void PictureView::setDesignPicture(const QString& name) {
  design_ = name;
  updateGeometry();
  update();
}

void PictureView::setPicture(const Picture& picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  update();
}

QSize PictureView::sizeHint() const {
  return design_.isEmpty() ? QSize(160, 120)
                           : namedPicture(design_).deviceIndependentSize().toSize();
}

QString PictureView::spokenValue() const {
  if (const auto* held = heldIn(picture_)) return held->name;
  return design_.isEmpty() ? QStringLiteral("none") : QString();
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const auto place = [this](QSizeF size) {
    size.scale(QSizeF(this->size()), Qt::KeepAspectRatio);
    QRectF target(QPointF(), size);
    target.moveCenter(QRectF(rect()).center());
    return target;
  };
  if (const auto* image = imageOf(picture_))
    painter.drawImage(place(image->size()), *image);
  else if (!design_.isEmpty())
    if (const auto picture = namedPicture(design_); !picture.isNull())
      painter.drawPixmap(place(picture.deviceIndependentSize()), picture, picture.rect());
}

}  // namespace nautrel
