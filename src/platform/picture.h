// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <string>

namespace nautrel {

/// A picture as the look decoded it; the windows only hand it on.
class PictureData {
 public:
  virtual ~PictureData() = default;
};

/// An empty handle is the empty picture.
using Picture = std::shared_ptr<const PictureData>;

}  // namespace nautrel
