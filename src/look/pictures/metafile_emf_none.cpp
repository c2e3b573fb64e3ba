#include "look/pictures/metafile_svg.h"

namespace nautrel {

QByteArray svgOfEnhancedMetafile(QByteArray) {
  return {};
}

}  // namespace nautrel
