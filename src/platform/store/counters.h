#pragma once

#include "platform/store/store_state.h"

namespace pantrigo {

/// Raises each counter of `System` that lies below the highest id of its table to that id. A store that was opened only
/// for reading is left alone.
void raiseIdCounters(Database::State& state);

/// The counter of `System` that a table's ids are given from: the table's id field, by the same name. Empty for a table
/// without.
[[nodiscard]] std::string_view idFieldOf(const TableDescription& table);

}  // namespace pantrigo
