#include "platform/store/store_state.h"

#include <sqlite3.h>

#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

Database::State::State(std::unique_ptr<Connection> opened) : connection_(std::move(opened)) {
  for (const TableDescription& table : storeTables()) {
    tables_.push_back(std::make_unique<TableAccess>(*connection_, table));
  }
}

Database::State::~State() {
  // The last sign of a store that nobody closed: there is nobody left to tell of a failure.
  guarded([this] { close(); });
}

Connection& Database::State::connection() const {
  if (!connection_) throw RuntimeError(store_error::objectClosed);
  return *connection_;
}

TableAccess& Database::State::access(const TableDescription& table) const {
  if (!connection_) throw RuntimeError(store_error::objectClosed);
  return *tables_[static_cast<std::size_t>(&table - storeTables().data())];
}

TableAccess& Database::State::access(std::string_view table) const {
  const TableDescription* description = findTable(table);
  if (description == nullptr) raiseNamed(store_error::noSuchTable, table);
  return access(*description);
}

void Database::State::setDurability(Durability durability) {
  if (durability == durability_ || connection().isReadOnly()) return;
  if (durability == Durability::AtCheckpoint) {
    connection().execute("PRAGMA synchronous=NORMAL");
    durability_ = durability;
    return;
  }
  connection().execute("PRAGMA synchronous=FULL");
  // From here on each update is durable, whatever becomes of the checkpoint.
  durability_ = durability;
  checkResult(sqlite3_wal_checkpoint_v2(connection().handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr));
}

void Database::State::enterCheckpointScope() {
  if (checkpointScopes_ == 0) setDurability(Durability::AtCheckpoint);
  ++checkpointScopes_;
}

void Database::State::leaveCheckpointScope() {
  if (--checkpointScopes_ == 0) setDurability(Durability::EachUpdate);
}

void Database::State::close() {
  if (!connection_) return;
  tables_.clear();
  const std::unique_ptr<Connection> closing = std::move(connection_);
  if (closing->isReadOnly()) return;
  closing->dropStatements();
  // Moves what is in the log into the file, so that the file at rest stands alone.
  if (closing->single("PRAGMA journal_mode=DELETE") != "delete") throw RuntimeError(store_error::pathFileAccess);
}

Database::State& StoreAccess::state(const Database& database) {
  if (!database.state_ || !database.state_->isOpen()) throw RuntimeError(store_error::objectClosed);
  return *database.state_;
}

}  // namespace pantrigo
