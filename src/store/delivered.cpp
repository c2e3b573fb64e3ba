// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/delivered.h"

#include <filesystem>
#include <system_error>

#include "platform/draft_file.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "store/connection.h"
#include "store/contract.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

// For tools that look at files; a logbook without it is as good.
constexpr int kApplicationId = 0x4E617574;  // "Naut"

std::string creation(const Table& table) {
  std::string columns;
  for (const auto& column : table.columns) {
    columns += (columns.empty() ? "" : ", ") + sqlName(column.name);
    columns += column.kind == Kind::Flag ? " BOOLEAN NOT NULL DEFAULT 0" : " TEXT";
  }
  return "CREATE TABLE " + sqlName(table.name) + " (" + columns + ")";
}

std::string emptyRow(const Table& table) {
  std::string values;
  for (const auto& column : table.columns) {
    values += values.empty() ? "" : ", ";
    values += column.kind == Kind::Flag ? "0" : "''";
  }
  return "INSERT INTO " + sqlName(table.name) + " VALUES (" + values + ")";
}

void fill(const Connection& draft) {
  Statement(draft, "PRAGMA journal_mode = WAL").step();
  Statement(draft, "BEGIN").run();
  for (const auto& table : logbookTables()) {
    Statement(draft, creation(table)).run();
    for (int row = 0; row < table.deliveredRows; ++row) Statement(draft, emptyRow(table)).run();
  }
  // The dives are counted again and again: through a narrow index that costs a tenth of the walk.
  Statement(draft, "CREATE INDEX \"Zählung\" ON \"Logbuch\" (\"Rep\")").run();
  Statement(draft, "PRAGMA application_id = " + std::to_string(kApplicationId)).run();
  Statement(draft, "PRAGMA user_version = 1").run();
  Statement(draft, "COMMIT").run();
}

/// Puts the finished draft in its place in one step, unless something stands there.
bool place(const std::string& draft, const std::string& target) {
  std::error_code failed;
  fs::create_hard_link(nativePath(draft), nativePath(target), failed);
  if (!failed) return true;
  if (failed == std::errc::file_exists) return false;
  // Some file systems know no hard links.
  if (fs::copy_file(nativePath(draft), nativePath(target), fs::copy_options::none, failed))
    return true;
  if (failed == std::errc::file_exists) return false;
  raise(CannotOpenFile, target);
}

}  // namespace

bool createDeliveredLogbook(const std::string& path) {
  const fs::path target = nativePath(path);
  std::error_code failed;
  if (fs::exists(fs::symlink_status(target, failed))) return false;
  if (target.has_parent_path() && !fs::is_directory(target.parent_path(), failed))
    raise(PathNotValid, path);

  for (const char* side : {"-wal", "-journal"})
    if (auto log = target; fs::file_size(log += side, failed) > 0 && !failed)
      raise(CannotOpenFile, path + side);

  const DraftFile draft(path);
  fill(Connection::create(draft.path()));
  return place(draft.path(), path);
}

}  // namespace nautrel
