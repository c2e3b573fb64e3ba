#include "look/pictures/metafile.h"

namespace nautrel {

QImage drawMetafile(const QByteArray&, MetafileKind, QSize) {
  return {};
}

}  // namespace nautrel
