// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/transaction.h"

#include "platform/errors.h"
#include "store/connection.h"
#include "store/database.h"

namespace nautrel {
namespace {

/// Until the end of its life.
class Allowance {
 public:
  explicit Allowance(bool& allowed) : allowed_(allowed) { allowed_ = true; }
  ~Allowance() { allowed_ = false; }
  Allowance(const Allowance&) = delete;
  Allowance& operator=(const Allowance&) = delete;

 private:
  bool& allowed_;
};

}  // namespace

/// A full disk lets the engine take everything back on its own, and would store each later row
/// alone: so nothing is stored here but by commit().
Transaction::Transaction(Database& database) : connection_(database.connection_) {
  connection_->beforeWriting();
  Statement(*connection_, "BEGIN IMMEDIATE").run();
  const auto refuse = [](void* committing) { return *static_cast<bool*>(committing) ? 0 : 1; };
  sqlite3_commit_hook(connection_->handle(), refuse, &committing_);
}

Transaction::~Transaction() {
  sqlite3_commit_hook(connection_->handle(), nullptr, nullptr);
  if (!connection_->inTransaction()) return;
  resumeNext([&] { Statement(*connection_, "ROLLBACK").run(); });
}

/// A file that was exchanged meanwhile must not be given this one's log.
void Transaction::commit() {
  connection_->beforeWriting();
  const Allowance allowed(committing_);
  Statement(*connection_, "COMMIT").run();
  connection_->noteWritten();
}

}  // namespace nautrel
