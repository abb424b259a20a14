#include "platform/store/database.h"

#include "platform/store/counters.h"
#include "platform/store/opening.h"
#include "platform/store/query.h"
#include "platform/store/store_errors.h"
#include "platform/store/store_state.h"
#include "platform/store/table_cursor.h"
#include "platform/text/errors.h"

namespace pantrigo {

Database::Database() = default;

Database Database::OpenDatabase(const std::filesystem::path& file) {
  Database database;
  database.state_ = std::make_shared<State>(openStoreFile(file));
  return database;
}

void Database::createStore(const std::filesystem::path& file) {
  createStoreFile(file);
}

Recordset Database::OpenRecordset(std::string_view source) {
  State& state = StoreAccess::state(*this);
  const TableDescription* table = findTable(source);
  if (table == nullptr) return Recordset(openQuery(state_, source));
  if (table == findTable("System")) raiseIdCounters(state);
  return Recordset(std::make_shared<TableCursor>(state_, *table));
}

void Database::Execute(std::string_view sql) {
  executeDelete(StoreAccess::state(*this), sql);
}

void Database::Close() {
  if (isOpen()) state_->close();
}

bool Database::isOpen() const {
  return state_ && state_->isOpen();
}

void Database::setDurability(Durability durability) {
  StoreAccess::state(*this).setDurability(durability);
}

void Database::enterCheckpointScope() {
  StoreAccess::state(*this).enterCheckpointScope();
}

void Database::leaveCheckpointScope() {
  StoreAccess::state(*this).leaveCheckpointScope();
}

}  // namespace pantrigo
