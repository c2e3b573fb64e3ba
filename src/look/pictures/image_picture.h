// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>

#include "platform/picture.h"

namespace nautrel {

/// A picture as the look holds it: decoded, at most as large as a screen shows it.
class ImagePicture : public PictureData {
 public:
  explicit ImagePicture(QImage decoded) : image(std::move(decoded)) {}
  const QImage image;
};

inline const QImage* imageOf(const Picture& picture) {
  const auto* held = dynamic_cast<const ImagePicture*>(picture.get());
  return held == nullptr ? nullptr : &held->image;
}

}  // namespace nautrel
