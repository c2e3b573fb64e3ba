// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/value.h"
#include "store/contract.h"

namespace nautrel {

class Connection;
/// The connections whose changes still wait in a log.
using Unsettled = std::vector<std::shared_ptr<Connection>>;

/// One open database file. Raises 3024, 3044, 3051, 3343.
class Connection : public std::enable_shared_from_this<Connection> {
 public:
  /// With its first change it enters itself into `unsettled`.
  Connection(std::string path, std::weak_ptr<Unsettled> unsettled);

  /// Only looks, also where nothing can be written: then the file must be one that nobody has open.
  /// A log that waits stays as it is.
  static Connection toRead(std::string path);
  /// Leaves the log alone when it closes, as every connection does that finds the file damaged: the
  /// engine would drop what it cannot read of a log, and the whole log of such a file.
  static Connection sparingLog(std::string path);

  /// Makes the file if it is not there.
  static Connection create(std::string path);

  const std::string& path() const { return path_; }

  sqlite3* handle() const { return handle_.get(); }

  /// Raises the run-time's failure for a result code of the engine.
  [[noreturn]] void raiseFailure(int code) const;

  /// Raises 3051 if another file stands at the path by now, 3024 if none does. Changes that wait in
  /// the log are dropped then: there they would be taken for the other file's.
  void requireSameFile();
  /// Must come before every change. Raises 3027, 3026 on a disk that was full at the opening, and
  /// what requireSameFile() raises.
  void beforeWriting();
  /// Notes that there is something to settle.
  void noteWritten();
  /// The number of rows that the last change touched; notes that it was written.
  int rowsWritten();
  bool inTransaction() const { return sqlite3_get_autocommit(handle()) == 0; }

  /// Moves the write-ahead log into the file, both synced to the disk.
  void checkpoint();

 private:
  struct Closer {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
  };

  explicit Connection(std::string path);
  void open(const std::string& name, int flags);
  void spareLog(bool yes) const;
  bool moved() const;
  sqlite3_file* log() const;
  void syncLog();

  std::string path_;
  std::filesystem::path target_;  // of a path that is a link
  std::weak_ptr<Unsettled> unsettled_;
  std::unique_ptr<sqlite3, Closer> handle_;
  bool logAhead_ = false;
  bool waits_ = false;     // for settle()
  bool lookOnly_ = false;  // on a full disk
  bool sparesLog_ = false;
};

/// A prepared statement. Places count from 1 in bind(), columns from 0.
class Statement {
 public:
  Statement() = default;
  Statement(const Connection& connection, const std::string& sql);

  explicit operator bool() const { return handle_ != nullptr; }

  void bind(int place, std::int64_t number);
  void bindText(int place, std::string_view text);
  void bindNull(int place);

  /// True when it stands on a row, false when it is through.
  bool step();
  /// Runs a statement that gives no rows.
  void run();
  void reset();

  int columnCount() const { return sqlite3_column_count(handle_.get()); }
  std::string_view columnName(int column) const;

  std::int64_t integer(int column) const { return sqlite3_column_int64(handle_.get(), column); }
  Value value(int column, Kind kind) const;
  /// NULL as a text without data. Good until the next step or reset. Asks the column's value
  /// itself, which the engine allows where one thread alone uses a connection: passes spend a good
  /// part of their time on the way to each column.
  std::string_view text(int column) const {
    sqlite3_value* value = sqlite3_column_value(handle_.get(), column);
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
  }

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
  };

  const Connection* connection_ = nullptr;
  std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

/// A table's or column's name as SQL takes it.
std::string sqlName(std::string_view name);

}  // namespace nautrel
