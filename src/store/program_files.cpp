// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/program_files.h"

#include "platform/files.h"
#include "store/database_file.h"
#include "store/lock.h"

namespace nautrel {

std::vector<std::string> programFiles(const std::string& logbook) {
  std::vector<std::string> files;
  const auto path = nativePath(logbook);
  const auto folder = path.parent_path();
  for (const char* program : {"nautrel", "nautrel.exe", "nautrel-exchange", "nautrel-exchange.exe",
                              "nautrel-exchange-window.exe", "Logbuch.lock"})
    files.push_back(utf8(folder / program));
  for (const auto text : kTexts)
    for (const auto& where : {folder, folder / ".delivered", folder / ".delivered/new"})
      files.push_back(utf8(where / text));
  if (auto lock = LogbookLock::fileFor(logbook); !lock.empty()) files.push_back(std::move(lock));
  for (const auto side : kSideFiles)
    for (auto where : {path, followLinks(path)}) files.push_back(utf8(where += side));
  return files;
}

}  // namespace nautrel
