// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/restore.h"

#include "exchange/check.h"
#include "exchange/format.h"
#include "exchange/hold.h"
#include "exchange/side_files.h"
#include "platform/draft_file.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "store/database_file.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;

bool holdsSomething(const fs::path& file) {
  std::error_code failed;
  return fs::is_regular_file(file, failed) && fs::file_size(file, failed) > 0;
}

bool hasLog(const fs::path& logbook) {
  return holdsSomething(beside(logbook, "-wal")) || holdsSomething(beside(logbook, "-journal"));
}

/// The way from the present logbook to the copy, in steps after each of which all that was stored
/// is there under one name or the other, and each of which is on the disk before the next begins.
class Exchange {
 public:
  Exchange(const fs::path& present, LocalTime now)
      : present_(present), kept_(freeDatedPath(present.parent_path(), kReplaced, now)) {}

  /// Afterwards the logbook is whole without a log, or there is none, or it is damaged.
  void takeLogIn() const;
  void keepPresent();
  void removeLog() const;
  void put(const fs::path& copy) const;

  Restored result() const;

 private:
  void giveSecondName(const char* side);
  [[noreturn]] void refuse() const;

  fs::path present_;
  fs::path kept_;
};

void Exchange::takeLogIn() const {
  std::error_code failed;
  if (!fs::exists(present_, failed)) return;
  try {
    nautrel::takeLogIn(utf8(present_));
  } catch (const RunTimeError& failure) {
    if (failure.number == CouldNotLock)
      throw Refused{"The logbook is open in another program. Please close that first."};
    if (failure.number != UnrecognizedFormat && failure.number != InternalError) throw;
  }
}

/// The log first: so the file never stands under its new name without it.
void Exchange::keepPresent() {
  for (const char* side : {"-journal", "-wal", ""})
    if (*side == '\0' || holdsSomething(beside(present_, side))) giveSecondName(side);
  if (!syncToDisk(present_.parent_path())) refuse();
}

void Exchange::giveSecondName(const char* side) {
  const auto from = beside(present_, side);
  const auto to = beside(kept_, side);
  std::error_code failed;
  if (!fs::exists(from, failed)) return;
  fs::create_hard_link(from, to, failed);
  if (!failed) return;
  // Some file systems know no second names.
  const DraftFile copy(utf8(present_));
  const auto draft = nativePath(copy.path());
  if (!fs::copy_file(from, draft, failed) || !syncToDisk(draft) || !moveToFreeName(draft, to))
    refuse();
}

void Exchange::removeLog() const {
  for (const char* side : {"-wal", "-shm", "-journal"}) {
    std::error_code failed;
    fs::remove(beside(present_, side), failed);
    if (failed) refuse();
  }
  if (!syncToDisk(present_.parent_path())) refuse();
}

void Exchange::put(const fs::path& copy) const {
  std::error_code failed;
  fs::rename(copy, present_, failed);
  if (failed) refuse();
  syncToDisk(present_.parent_path());
}

void Exchange::refuse() const {
  throw Refused{"'" + utf8(present_) +
                "' cannot be exchanged. May you write in its folder, and is "
                "there room on the disk?"};
}

Restored Exchange::result() const {
  std::error_code failed;
  const bool log = hasLog(kept_);
  if (fs::exists(kept_, failed)) return {utf8(kept_), log};
  return {log ? utf8(beside(kept_, "-wal")) : std::string()};
}

/// Whether a file is a dated name of the logbook, or of its log, and nothing but that.
bool isSecondName(const fs::path& file, const fs::path& present, std::string_view side) {
  auto name = utf8(file.filename());
  if (!name.ends_with(side)) return false;
  name.resize(name.size() - side.size());
  std::error_code failed;
  return isDatedName(name, kReplaced) && fs::equivalent(file, beside(present, side), failed) &&
         (!side.empty() || !hasLog(file));
}

/// What a restore that was killed has left: drafts, and second names. The log's go first: one that
/// is nothing but kept has its file beside it kept too.
void removeLeftovers(const fs::path& present) {
  std::error_code failed;
  const auto files = filesIn(present.parent_path());
  for (const auto& file : files)
    if (DraftFile::isDraftOf(utf8(present.filename()), utf8(file.filename())))
      fs::remove(file, failed);
  for (const auto side : {"-wal", "-journal", ""})
    for (const auto& file : files)
      if (isSecondName(file, present, side)) fs::remove(file, failed);
}

/// Removes them at its end too, where a step has failed.
class Cleared {
 public:
  explicit Cleared(const fs::path& present) : present_(present) { removeLeftovers(present_); }
  ~Cleared() { removeLeftovers(present_); }
  Cleared(const Cleared&) = delete;
  Cleared& operator=(const Cleared&) = delete;

 private:
  const fs::path& present_;
};

/// The copy as it will stand in the place, on the disk and found sound.
void prepare(const std::string& copy, const fs::path& draft, const fs::path& present) {
  copyDatabase(copy, utf8(draft));
  if (const auto findings = checkFile(utf8(draft)); !findings.empty())
    throw Refused{"'" + copy + "' is no logbook that can be put back. " + findings.front().text};
  takeRights(present, draft);
  if (!syncToDisk(draft)) throw Refused{"The copy could not be written. Is the disk full?"};
}

}  // namespace

Restored restoreLogbook(const std::string& logbook, const std::string& copy, LocalTime now) {
  const Hold hold(logbook);
  const auto present = followLinks(nativePath(logbook));
  if (sameFile(nativePath(copy), present)) throw Refused{"'" + copy + "' is the logbook itself."};
  if (!mayMakeFileIn(present.parent_path()))
    throw Refused{"Nothing can be written into '" + utf8(present.parent_path()) + "'."};
  std::error_code failed;
  const auto status = fs::status(nativePath(copy), failed);
  if (fs::exists(status) && !fs::is_regular_file(status))
    throw Refused{"'" + copy + "' is no file, so no logbook that can be put back."};
  const Cleared cleared(present);
  const DraftFile draft(utf8(present));
  prepare(copy, nativePath(draft.path()), present);
  Exchange exchange(present, now);
  exchange.takeLogIn();
  exchange.keepPresent();
  exchange.removeLog();
  exchange.put(nativePath(draft.path()));
  return exchange.result();
}

}  // namespace nautrel::exchange
