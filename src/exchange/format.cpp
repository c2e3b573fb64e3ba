// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/format.h"

#include "platform/text.h"

namespace nautrel::exchange {

std::optional<Format> formatOf(std::string_view fileName) {
  const auto name = lowerCase(fileName);
  for (const char* ending : {".uddf", ".xml"})
    if (name.ends_with(ending)) return Format::Uddf;
  for (const char* ending : {".csv", ".tsv", ".txt"})
    if (name.ends_with(ending)) return Format::Csv;
  return {};
}

}  // namespace nautrel::exchange
