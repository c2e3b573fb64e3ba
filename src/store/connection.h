#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "platform/value.h"
#include "store/contract.h"

namespace nautrel {

/// One open database file. Raises 3024, 3044, 3051, 3343.
class Connection {
 public:
  /// `written` collects the paths that wait for settle().
  Connection(std::string path, std::shared_ptr<std::set<std::string>> written);

  /// Makes the file if it is not there.
  static Connection create(std::string path);

  /// Whether changes to the file may still wait in the log beside it.
  static bool hasLog(const std::string& path);

  sqlite3* handle() const { return handle_.get(); }

  /// Raises the run-time's failure for a result code of the engine.
  [[noreturn]] void raiseFailure(int code) const;

  /// Must come before every change. Raises 3027.
  void beforeWriting();
  /// The number of rows that the last change touched; notes that there is something to settle.
  int rowsWritten();

  /// Moves the write-ahead log into the file, both synced to the disk.
  void checkpoint();

 private:
  struct Closer {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
  };

  explicit Connection(std::string path);
  void open(int flags);
  void syncLog();

  std::string path_;
  std::shared_ptr<std::set<std::string>> written_;
  std::unique_ptr<sqlite3, Closer> handle_;
  bool logAhead_ = false;
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
  std::string columnName(int column) const;
  /// As declared in the table.
  Kind columnKind(int column) const;

  std::int64_t integer(int column) const { return sqlite3_column_int64(handle_.get(), column); }
  Value value(int column, Kind kind) const;
  /// NULL as the empty text. Good until the next step or reset.
  std::string_view text(int column) const;

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
  };

  const Connection* connection_ = nullptr;
  std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

/// A table's or column's name as SQL takes it.
std::string sqlName(std::string_view name);

std::filesystem::path fromUtf8(const std::string& path);

}  // namespace nautrel
