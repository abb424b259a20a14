#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/store/database.h"
#include "platform/store/value.h"

namespace pantrigo {

// Rows of a store as they stand, past all cursors: for tools and tests that set a store up or look into it. All of it
// goes through the database's own connection, so it can be used while the program runs. Names of tables and fields go
// without regard to case. Errors of all functions: 3078 for an unknown table, 3265 for an unknown field, 3420 when the
// database is closed; of those that write also 3022, 3026, 3027, and those of a field write.

/// Field names and what stands in them.
using RawRow = std::map<std::string, Value, std::less<>>;

/// All rows in physical order, each with every field, Null ones too.
[[nodiscard]] std::vector<RawRow> rawRows(const Database& database, std::string_view table);

/// Adds a row behind all others. Fields that are not given hold what a new row holds. Raises the counter of `System`
/// for the table's ids where the given id lies above it.
void addRawRow(const Database& database, std::string_view table, const RawRow& row);

/// Writes the given fields in all rows where `field` equals `value`, as the store compares (a Null equals a Null);
/// gives their number.
long changeRawRows(const Database& database, std::string_view table, std::string_view field, const Value& value,
                   const RawRow& changes);

/// Removes all rows where `field` equals `value`; gives their number.
long removeRawRows(const Database& database, std::string_view table, std::string_view field, const Value& value);

}  // namespace pantrigo
