// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/value.h"

namespace nautrel {

class Connection;
class Cursor;
class Database;
class Recordset;

/// The engine behind all databases of the program. One lives as long as the program; it knows what
/// was written since the last settle().
class Workspace {
 public:
  /// Whether its databases are written to. One that only looks also reads where nothing can be
  /// written: a file that nobody has open there.
  enum class Use { Write, Look };

  explicit Workspace(Use use = Use::Write);
  ~Workspace();
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  /// Opens shared, for reading and writing. Raises 3024 (no file), 3044 (no folder), 3051 (cannot
  /// be opened), 3343 (no logbook database), 3026 (disk full, and a log that must be read; without
  /// one the file is opened for reading alone). A file that was exchanged or taken away while
  /// changes to it wait for settle() is not opened: 3051, 3024.
  Database OpenDatabase(const std::string& path);

  /// Brings everything stored so far into the one file and on the disk. Called when the outermost
  /// handler ends and before the user is told anything. Costs nothing if nothing was written.
  /// Raises 3026 (disk full) and what OpenDatabase raises.
  void settle();

 private:
  std::shared_ptr<std::vector<std::shared_ptr<Connection>>> unsettled_;
  Use use_;
};

/// The columns that a pass needs, by name; none given means all of them. The ordinals stay those of
/// the table; reading a column that is not among them raises 3265.
using Columns = std::vector<std::string>;

/// One open connection; closed by the end of its life. Recordsets keep it alive, and changes that
/// wait for settle().
class Database {
 public:
  /// A table-type recordset: on the first row, its count exact at once, walked in stored order.
  /// Raises 3078 for a table that is not there, 3265 for a column that is not there or, of the
  /// table's own, not in its place; that one's name is in the text.
  Recordset OpenRecordset(std::string_view table, const Columns& columns = {});

  /// A dynaset: the set of rows is fixed now, each row's values are fetched when the cursor comes
  /// to it. Raises what OpenRecordset raises.
  Recordset OpenDynaset(std::string_view table);

 private:
  friend class Transaction;
  friend class Workspace;
  explicit Database(std::shared_ptr<Connection> connection);
  std::shared_ptr<Connection> connection_;
};

/// A cursor over the rows of one table in stored order. Every operation may raise 91 (closed), 3260
/// (locked), 3026 (disk full), 3027 (read-only), 51 (what the engine refuses else, in its words).
/// AddNew, Edit and Delete raise 3051 if another file has taken the place of the one that is open,
/// and 3024 if none has: neither is written then.
class Recordset {
 public:
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  int RecordCount() const;
  /// True when positioned past the last row; true at once on an empty table.
  bool Eof() const;
  /// The current row's place in the set, from 0; -1 without a current row.
  int AbsolutePosition() const;

  /// Raise 3021 on an empty set.
  void MoveFirst();
  void MoveLast();
  /// Off the last row Eof() becomes true; raises 3021 when it is true already.
  void MoveNext();
  /// Moves by `rows`, also backwards; 0 fetches the row again. Beyond either end it raises 3021 and
  /// has no effect: the row stays the current one, and what is pending on it stays pending.
  void Move(int rows);

  /// A column's value by ordinal or name: text, Null or a flag. Raises 3021 (no current row), 3167
  /// (deleted), 3265 (no such column).
  Value Fields(int ordinal) const;
  Value Fields(std::string_view name) const;
  /// For passes that read whole rows: a text column's text where it lies, Null as one without data,
  /// good until the next call that moves or changes; and whether a flag is Yes. Raise what Fields
  /// raises, and 13 for the text of a flag.
  /// @{
  std::string_view fieldText(int ordinal) const;
  bool fieldIsYes(int ordinal) const;
  /// @}
  /// A column of the current row as it is stored now, without a move: Fields keeps what it gave.
  /// Raises what Fields raises.
  Value FieldAfresh(int ordinal) const;

  /// Assigns a column of the row begun by AddNew or Edit. A number is stored as its general text
  /// with a decimal point. Raises 3020 without AddNew or Edit, 3265. A flag takes flags and
  /// numbers, and raises 13 for a text, 94 for Null.
  void setField(int ordinal, const Value& value);
  void setField(std::string_view name, const Value& value);

  /// A new row: flags No, text columns Null until assigned. What was pending is dropped.
  void AddNew();
  void Edit();
  /// Stores the row as a transaction of its own, unless a Transaction lives; after AddNew the row
  /// that was current is current again. Raises 3020, 3167.
  void Update();
  /// Removes the row at once. The position stays on it, unusable, until a move; MoveNext then
  /// reaches the row that followed. Raises 3021, 3167.
  void Delete();
  void Close();

  int FieldCount() const;
  std::string FieldName(int ordinal) const;

  /// Called after every move that ended on a row.
  std::function<void()> moved;

 private:
  friend class Database;
  Cursor& cursor() const;
  void raiseMoved();
  explicit Recordset(std::unique_ptr<Cursor> cursor);
  std::unique_ptr<Cursor> cursor_;
};

}  // namespace nautrel
