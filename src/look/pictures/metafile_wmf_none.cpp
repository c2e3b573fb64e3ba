#include "look/pictures/metafile_svg.h"

namespace nautrel {

QByteArray svgOfWindowsMetafile(QByteArray) {
  return {};
}

}  // namespace nautrel
