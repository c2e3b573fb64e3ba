// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/database_file.h"

#include <memory>

#include "platform/errors.h"
#include "store/connection.h"

namespace nautrel {

std::vector<std::string> damageOf(const std::string& path) {
  const auto connection = Connection::toRead(path);
  std::vector<std::string> damage;
  for (Statement check(connection, "PRAGMA integrity_check"); check.step();)
    if (const auto line = check.text(0); line != "ok") damage.emplace_back(line);
  return damage;
}

// Copied in one step, so that nobody's change comes in between. Nobody else reads the copy before
// it is whole: it needs no journal. To keep a log is the original's way and has come with it; taken
// off, the copy is read anywhere, be it a network's disk or one that cannot be written.
void copyDatabase(const std::string& path, const std::string& copy) {
  const auto source = Connection::toRead(path);
  const auto target = Connection::create(copy);
  Statement(target, "PRAGMA locking_mode = EXCLUSIVE").step();
  Statement(target, "PRAGMA journal_mode = OFF").step();
  Statement(target, "PRAGMA synchronous = OFF").run();
  sqlite3_backup* copying = sqlite3_backup_init(target.handle(), "main", source.handle(), "main");
  if (copying == nullptr) target.raiseFailure(sqlite3_extended_errcode(target.handle()));
  const int code = sqlite3_backup_step(copying, -1);
  sqlite3_backup_finish(copying);
  if (code != SQLITE_DONE) target.raiseFailure(code);
  Statement(target, "PRAGMA journal_mode = DELETE").step();
}

void takeLogIn(const std::string& path) {
  const auto connection = Connection::sparingLog(path);
  Statement way(connection, "PRAGMA journal_mode = DELETE");
  if (!way.step() || way.text(0) != "delete") raise(CouldNotLock);
}

}  // namespace nautrel
