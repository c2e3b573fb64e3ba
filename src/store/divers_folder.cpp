// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/divers_folder.h"

#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/draft_file.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "store/contract.h"
#include "store/delivered.h"
#include "store/program_files.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

fs::path lastOf(const fs::path& folder) {
  return folder / ".delivered";
}

/// Named one by one: the library reads no folder whose path is longer than 260 characters.
std::vector<fs::path> textsOf(const fs::path& folder) {
  std::vector<fs::path> texts;
  for (const auto name : kTexts) {
    auto text = lastOf(folder) / "new" / name;
    std::error_code none;
    if (fs::is_regular_file(text, none)) texts.push_back(std::move(text));
  }
  return texts;
}

bool isThere(const fs::path& file) {
  std::error_code failed;
  return fs::exists(fs::symlink_status(file, failed));
}

std::string content(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

bool same(const fs::path& one, const fs::path& other) {
  std::error_code failed;
  return fs::is_regular_file(other, failed) && content(one) == content(other);
}

/// Written apart and renamed, so that a death leaves the old one or the new one.
void replace(const fs::path& text, const fs::path& target) {
  if (same(text, target)) return;
  const DraftFile draft(utf8(target));
  fs::copy_file(text, nativePath(draft.path()));
  fs::rename(nativePath(draft.path()), target);
}

void renew(const fs::path& text, const fs::path& folder) {
  const auto target = folder / text.filename();
  const auto last = lastOf(folder) / text.filename();
  const bool edited = isThere(target) && !same(target, text) && !same(target, last);
  if (edited) return;
  replace(text, target);
  replace(text, last);
}

}  // namespace

std::string makeMissingLogbook(const std::string& folder) {
  const auto place = nativePath(folder);
  const auto logbook = place / kLogbookFile;
  if (isThere(logbook) || textsOf(place).empty()) return {};
  auto log = logbook;
  log += "-wal";
  // The engine would write it into a new logbook, and its dives would be lost.
  if (std::error_code none; fs::file_size(log, none) > 0 && !none)
    return "Logbuch.mdb is not in " + folder +
           ", but the log Logbuch.mdb-wal that belongs to it is. Put the logbook back beside its "
           "log, or take the log away.";
  try {
    createDeliveredLogbook(utf8(logbook));
    return {};
  } catch (const RunTimeError& failure) {
    return "No logbook can be made in " + folder + ". " + failure.text;
  }
}

void renewTexts(const std::string& folder) {
  const auto place = nativePath(folder);
  for (const auto& text : textsOf(place)) {
    try {
      renew(text, place);
    } catch (const fs::filesystem_error&) {
    }
  }
}

}  // namespace nautrel
