// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/import_source.h"

#include "exchange/csv_reader.h"
#include "exchange/uddf_reader.h"

namespace nautrel::exchange {

std::unique_ptr<ImportSource> openSource(const std::string& path, std::optional<Format> format,
                                         const Progress& progress) {
  if (!format) format = formatOf(path);
  if (!format)
    throw Refused{"The ending of '" + path +
                  "' tells no format: .uddf, .xml, .csv, .tsv and .txt "
                  "are known."};
  InputFile file(path, progress);
  return *format == Format::Uddf ? readUddf(file) : readCsv(file);
}

}  // namespace nautrel::exchange
