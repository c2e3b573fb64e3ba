// SPDX-License-Identifier: GPL-2.0-or-later
#include <emf2svg.h>

#include "look/pictures/metafile_svg.h"

namespace nautrel {

QByteArray svgOfEnhancedMetafile(QByteArray bytes) {
  generatorOptions options{};
  char nameSpace[] = "";
  options.nameSpace = nameSpace;
  options.svgDelimiter = true;
  options.emfplus = true;
  char* text = nullptr;
  size_t length = 0;
  if (emf2svg(bytes.data(), static_cast<size_t>(bytes.size()), &text, &length, &options) != 1)
    return {};
  return {text, static_cast<qsizetype>(length)};
}

}  // namespace nautrel
