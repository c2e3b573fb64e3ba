// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>

#include "platform/picture.h"

namespace nautrel {

/// A picture as the look holds it: decoded, at most as large as a screen shows it.
class ImagePicture : public PictureData {
 public:
  ImagePicture(QImage decoded, QString file) : image(std::move(decoded)), name(std::move(file)) {}
  const QImage image;
  const QString name;  // of its file, without the folder
};

inline const ImagePicture* heldIn(const Picture& picture) {
  return dynamic_cast<const ImagePicture*>(picture.get());
}
inline const QImage* imageOf(const Picture& picture) {
  const auto* held = heldIn(picture);
  return held == nullptr ? nullptr : &held->image;
}

}  // namespace nautrel
