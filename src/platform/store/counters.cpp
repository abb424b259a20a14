#include "platform/store/counters.h"

#include <string>

namespace pantrigo {

std::string_view idFieldOf(const TableDescription& table) {
  // The tables whose rows have ids, and no others, have a unique key of a single field.
  for (const IndexDescription& index : table.indexes) {
    if (index.uniqueness == Uniqueness::Unique && index.keyFields[1].empty()) return index.keyFields[0];
  }
  return {};
}

void raiseIdCounters(Database::State& state) {
  Connection& connection = state.connection();
  if (connection.isReadOnly()) return;
  bool isChanged = false;
  for (const TableDescription& table : storeTables()) {
    const std::string field(idFieldOf(table));
    if (field.empty()) continue;
    const std::string highest = "(SELECT max(" + field + ") FROM " + std::string(table.name) + ")";
    Running raise(connection.statement("UPDATE System SET " + field + " = " + highest + " WHERE ifnull(" + field +
                                       ", 0) < " + highest));
    raise->run();
    isChanged = isChanged || connection.changedRows() > 0;
  }
  if (isChanged) state.access("System").noteChange();
}

}  // namespace pantrigo
