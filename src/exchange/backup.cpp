// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/backup.h"

#include <algorithm>

#include "exchange/check.h"
#include "exchange/format.h"
#include "exchange/side_files.h"
#include "platform/draft_file.h"
#include "platform/files.h"
#include "store/database_file.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;

/// Earlier backups, the latest first.
std::vector<fs::path> earlierBackups(const fs::path& made) {
  std::vector<fs::path> backups;
  std::error_code failed;
  for (const auto& file : filesIn(made.parent_path())) {
    const bool regular = fs::symlink_status(file, failed).type() == fs::file_type::regular;
    if (regular && file != made && isDatedName(utf8(file.filename()), kBackup))
      backups.push_back(file);
  }
  std::sort(backups.rbegin(), backups.rend());
  return backups;
}

std::vector<std::string> deleteAllBut(int keep, const fs::path& made) {
  std::vector<std::string> deleted;
  const auto backups = earlierBackups(made);
  std::error_code failed;
  for (auto place = static_cast<std::size_t>(keep) - 1; place < backups.size(); ++place)
    if (fs::remove(backups[place], failed)) deleted.push_back(utf8(backups[place]));
  return deleted;
}

/// What backups that were killed have left.
void removeEarlierDrafts(const fs::path& made) {
  std::error_code failed;
  for (const auto& file : filesIn(made.parent_path())) {
    const auto name = utf8(file.filename());
    const auto target = name.substr(0, utf8(made.filename()).size());
    if (isDatedName(target, kBackup) && DraftFile::isDraftOf(target, name) &&
        target < utf8(made.filename()))
      fs::remove(file, failed);
  }
}

}  // namespace

Backup backUpLogbook(const std::string& logbook, const std::string& folder, std::optional<int> keep,
                     LocalTime now) {
  const auto place = nativePath(folder);
  std::error_code failed;
  if (!fs::is_directory(place, failed)) throw Refused{"'" + folder + "' is no folder."};
  if (!mayMakeFileIn(place)) throw Refused{"Nothing can be written into '" + folder + "'."};
  const auto target = freeDatedPath(place, kBackup, now);
  const DraftFile draft(utf8(target));
  copyDatabase(logbook, draft.path());
  if (const auto findings = checkFile(draft.path()); !findings.empty())
    throw Refused{"No backup was made, since the logbook is not sound. " + findings.front().text};
  if (!syncToDisk(nativePath(draft.path())) || !moveToFreeName(nativePath(draft.path()), target))
    throw Refused{"'" + utf8(target) + "' could not be written. Is the disk full?"};
  syncToDisk(place);
  removeEarlierDrafts(target);
  return {utf8(target), keep ? deleteAllBut(*keep, target) : std::vector<std::string>()};
}

}  // namespace nautrel::exchange
