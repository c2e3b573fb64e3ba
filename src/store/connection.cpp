// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/connection.h"

#include <system_error>
#include <utility>

#include "platform/errors.h"
#include "platform/files.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

constexpr int kWaitForOthers = 5000;      // ms, until a lock counts as an error
constexpr int kWaitForCheckpoint = 1000;  // ms; what waits longer is safe in the synced log

fs::path targetOf(const std::string& path) {
  std::error_code failed;
  const auto file = nativePath(path);
  return fs::is_symlink(file, failed) ? fs::canonical(file, failed) : fs::path{};
}

/// The engine takes a missing file for CANTOPEN and an empty one for a new database.
void requireLogbook(const std::string& path) {
  const fs::path file = nativePath(path);
  std::error_code failed;
  const auto status = fs::status(file, failed);
  if (status.type() == fs::file_type::not_found) {
    const auto folder = file.parent_path();
    const bool inFolder = folder.empty() || fs::is_directory(folder, failed);
    raise(inFolder ? DatabaseNotFound : PathNotValid, path);
  }
  if (fs::is_regular_file(status) && fs::file_size(file, failed) == 0)
    raise(UnrecognizedFormat, path);
}

/// Whether changes to the file may still wait in the log beside it.
bool hasLog(const std::string& path) {
  std::error_code failed;
  auto log = fs::canonical(nativePath(path), failed);
  log += "-wal";
  const auto size = fs::file_size(log, failed);
  return !failed && size > 0;
}

/// Names the file so that the engine reads it without a log, for which a full disk has no room.
std::string unchanging(const std::string& path) {
  constexpr auto kHex = "0123456789ABCDEF";
  const auto file = fs::absolute(nativePath(path)).generic_u8string();
  std::string uri = file.starts_with(u8"/") ? "file://" : "file:///";
  for (const char8_t byte : file) {
    const auto character = static_cast<unsigned char>(byte);
    if (character == '%' || character == '?' || character == '#')
      uri.append({'%', kHex[character >> 4], kHex[character & 15]});
    else
      uri += static_cast<char>(character);
  }
  return uri + "?immutable=1";
}

ErrorNumber failureFor(int code) {
  switch (code) {
    case SQLITE_IOERR_WRITE:
    case SQLITE_IOERR_FSYNC:
    case SQLITE_IOERR_SHMSIZE:
      return DiskFull;
  }
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return CouldNotLock;
    case SQLITE_FULL:
      return DiskFull;
    case SQLITE_READONLY:
      return DatabaseReadOnly;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return UnrecognizedFormat;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
      return CannotOpenFile;
    case SQLITE_NOMEM:
      return OutOfMemory;
    default:
      return InternalError;
  }
}

}  // namespace

Connection::Connection(std::string path, std::weak_ptr<Unsettled> unsettled)
    : path_(std::move(path)), target_(targetOf(path_)), unsettled_(std::move(unsettled)) {
  requireLogbook(path_);
  try {
    open(path_, SQLITE_OPEN_READWRITE);
  } catch (const RunTimeError& failure) {
    lookOnly_ = failure.number == DiskFull && !hasLog(path_);
    if (lookOnly_)
      open(unchanging(path_), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    else if (failure.number == UnrecognizedFormat || failure.number == DiskFull)
      throw;
    else
      raise(CannotOpenFile, path_);
  }
}

Connection::Connection(std::string path) : path_(std::move(path)) {}

Connection Connection::toRead(std::string path) {
  const auto file = nativePath(path);
  auto log = followLinks(file);
  log += "-wal";
  std::error_code failed;
  if (hasLog(path)) return sparingLog(std::move(path));
  const bool mayLog = canBeWritten(file) && mayMakeFileIn(log.parent_path());
  if (mayLog || fs::exists(log, failed) || !fs::is_regular_file(file, failed))
    return {std::move(path), {}};
  requireLogbook(path);
  Connection made(std::move(path));
  made.open(unchanging(made.path_), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  return made;
}

Connection Connection::sparingLog(std::string path) {
  requireLogbook(path);
  Connection made(std::move(path));
  made.sparesLog_ = true;
  made.open(made.path_, SQLITE_OPEN_READWRITE);
  return made;
}

Connection Connection::create(std::string path) {
  Connection made(std::move(path));
  made.open(made.path_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  return made;
}

void Connection::open(const std::string& name, int flags) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &opened,
                                   flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  handle_.reset(opened);
  if (code != SQLITE_OK) raiseFailure(code);
  sqlite3_busy_timeout(opened, kWaitForOthers);
  // Of a file that cannot be read it would drop the log.
  spareLog(true);
  // A column that is gone would else be read as a text that holds its name.
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  // Reads the file for the first time, and so finds out whether it is a database.
  Statement(*this, "PRAGMA synchronous = NORMAL").run();
  spareLog(sparesLog_);
}

void Connection::spareLog(bool yes) const {
  sqlite3_db_config(handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, yes ? 1 : 0, nullptr);
}

void Connection::raiseFailure(int code) const {
  const auto number = failureFor(code);
  if (number == UnrecognizedFormat) spareLog(true);
  if (number == InternalError) raiseBecause(number, sqlite3_errmsg(handle()));
  raise(number, path_);
}

/// Where the system cannot tell, the file counts as unmoved.
bool Connection::moved() const {
  int moved = 0;
  sqlite3_file_control(handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0 || (!target_.empty() && targetOf(path_) != target_);
}

void Connection::requireSameFile() {
  if (!moved()) return;
  if (sqlite3_file* file = waits_ ? log() : nullptr) file->pMethods->xTruncate(file, 0);
  std::error_code failed;
  raise(fs::exists(nativePath(path_), failed) ? CannotOpenFile : DatabaseNotFound, path_);
}

void Connection::beforeWriting() {
  requireSameFile();
  if (lookOnly_) raise(DiskFull);
  if (sqlite3_db_readonly(handle(), "main") == 1) raise(DatabaseReadOnly);
  if (std::exchange(logAhead_, true)) return;
  // A file that another tool left without the log would sync the disk at every single change. If
  // it cannot be mended now, the change itself still goes the slow and safe way.
  resumeNext([&] { Statement(*this, "PRAGMA journal_mode = WAL").step(); });
}

void Connection::noteWritten() {
  const auto unsettled = unsettled_.lock();
  if (unsettled && !std::exchange(waits_, true)) unsettled->push_back(shared_from_this());
}

int Connection::rowsWritten() {
  noteWritten();
  return sqlite3_changes(handle());
}

void Connection::checkpoint() {
  sqlite3_busy_timeout(handle(), kWaitForCheckpoint);
  const int code =
      sqlite3_wal_checkpoint_v2(handle(), "main", SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  sqlite3_busy_timeout(handle(), kWaitForOthers);
  if ((code & 0xff) == SQLITE_BUSY || (code & 0xff) == SQLITE_LOCKED)
    syncLog();
  else if (code != SQLITE_OK)
    raiseFailure(code);
  waits_ = false;
}

/// Nothing where the file is kept without a log.
sqlite3_file* Connection::log() const {
  sqlite3_file* log = nullptr;
  sqlite3_file_control(handle(), "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
  return log != nullptr && log->pMethods != nullptr ? log : nullptr;
}

/// Another program that reads or writes for long keeps the log from being emptied. What was written
/// is then safe in the log, which belongs to the file until the last program closes it.
void Connection::syncLog() {
  sqlite3_file* file = log();
  const int code = file == nullptr ? SQLITE_OK : file->pMethods->xSync(file, SQLITE_SYNC_NORMAL);
  if (code != SQLITE_OK) raiseFailure(code);
}

Statement::Statement(const Connection& connection, const std::string& sql)
    : connection_(&connection) {
  sqlite3_stmt* prepared = nullptr;
  const int code = sqlite3_prepare_v2(connection.handle(), sql.c_str(),
                                      static_cast<int>(sql.size() + 1), &prepared, nullptr);
  handle_.reset(prepared);
  if (code != SQLITE_OK) connection.raiseFailure(code);
}

void Statement::bind(int place, std::int64_t number) {
  sqlite3_bind_int64(handle_.get(), place, number);
}

void Statement::bindText(int place, std::string_view text) {
  const int code = sqlite3_bind_text64(handle_.get(), place, text.data(), text.size(),
                                       SQLITE_TRANSIENT, SQLITE_UTF8);
  if (code != SQLITE_OK) connection_->raiseFailure(code);
}

void Statement::bindNull(int place) {
  sqlite3_bind_null(handle_.get(), place);
}

bool Statement::step() {
  const int code = sqlite3_step(handle_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  reset();
  connection_->raiseFailure(code);
}

void Statement::run() {
  step();
  reset();
}

void Statement::reset() {
  sqlite3_reset(handle_.get());
}

std::string_view Statement::columnName(int column) const {
  return sqlite3_column_name(handle_.get(), column);
}

Value Statement::value(int column, Kind kind) const {
  if (kind == Kind::Flag) return sqlite3_column_int(handle_.get(), column) != 0;
  const auto found = text(column);
  return found.data() == nullptr ? Value::null() : Value(std::string(found));
}

std::string sqlName(std::string_view name) {
  std::string sql = "\"";
  for (const char character : name) sql.append(character == '"' ? 2 : 1, character);
  return sql += '"';
}

}  // namespace nautrel
