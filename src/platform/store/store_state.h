#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/store/connection.h"
#include "platform/store/database.h"
#include "platform/store/table_access.h"

namespace pantrigo {

/// One open store. Cursors share it; once it is closed it holds nothing but that fact.
struct Database::State {
  explicit State(std::unique_ptr<Connection> opened);
  ~State();
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  [[nodiscard]] bool isOpen() const { return connection_ != nullptr; }
  /// Error 3420 when the store is closed.
  [[nodiscard]] Connection& connection() const;
  /// Error 3078 for an unknown table, 3420 when the store is closed.
  [[nodiscard]] TableAccess& access(std::string_view table) const;
  [[nodiscard]] TableAccess& access(const TableDescription& table) const;

  void setDurability(Durability durability);
  void enterCheckpointScope();
  void leaveCheckpointScope();
  void close();

 private:
  std::unique_ptr<Connection> connection_;
  /// In the order of `storeTables`.
  std::vector<std::unique_ptr<TableAccess>> tables_;
  Durability durability_ = Durability::EachUpdate;
  int checkpointScopes_ = 0;
};

/// The way to the state of an open database for the other parts of the store.
class StoreAccess {
 public:
  /// Error 3420 when the database was never opened or is closed.
  [[nodiscard]] static Database::State& state(const Database& database);
};

}  // namespace pantrigo
