// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>

namespace nautrel {

class Connection;
class Database;

/// All or nothing: what the recordsets of one Database change while it lives is stored together by
/// commit(), and taken back by its end without that, be it an exception or a death of the program.
/// Another program sees nothing of it before, and waits with its own changes.
///
/// A recordset that changed rows which were taken back must be opened afresh.
class Transaction {
 public:
  /// Begins. Raises 3260 (another program is writing, for 5 s by now), 3027 (read-only), 3026 (disk
  /// full), 3051 or 3024 if the file is no longer the one that was opened, 51 within
  /// another one of this Database.
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// Stores everything; on the disk it is with the Workspace's next settle(). Raises what the
  /// beginning raises, and 51 a second time; nothing is stored then.
  void commit();

 private:
  std::shared_ptr<Connection> connection_;
  bool committing_ = false;
};

}  // namespace nautrel
