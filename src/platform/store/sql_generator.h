#pragma once

#include <string>
#include <vector>

#include "platform/store/schema.h"
#include "platform/store/sql_conditions.h"
#include "platform/store/sql_syntax.h"

namespace pantrigo {

/// A query as the engine runs it.
struct EngineQuery {
  EngineText text;
  /// The fields of the result, in the order of its columns.
  std::vector<FieldDescription> fields;
  /// Where the result is rows of one table, that table: the engine then gives their row numbers in physical order.
  /// Otherwise null, and it gives the fields: a distinct result in their order, another in the physical order of its
  /// tables.
  const TableDescription* rowsOf = nullptr;
};

/// Errors: 3078 for an unknown table, 3075 for an unknown field, one of a table that is not in the FROM list, and a
/// `like` on a field that holds no text; 93 for an invalid pattern.
[[nodiscard]] EngineQuery generateQuery(const SqlSelect& select);

struct EngineDelete {
  EngineText text;
  const TableDescription* table;
};

[[nodiscard]] EngineDelete generateDelete(const SqlDelete& statement);

}  // namespace pantrigo
