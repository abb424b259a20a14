#include "platform/store/sql_generator.h"

#include "platform/store/schema_sql.h"

namespace pantrigo {

namespace {

std::string columnList(const std::vector<Column>& columns) {
  return nameList(columns, [](const Column& column) { return column.text(); });
}

std::string rowNumberList(const Scope& scope) {
  return nameList(scope.tables(),
                  [](const TableDescription* table) { return std::string(table->name) + "." + rowNumberColumn; });
}

}  // namespace

EngineQuery generateQuery(const SqlSelect& select) {
  const Scope scope(select.tables, nullptr);
  const std::vector<Column> columns = selectedColumns(select, scope);
  EngineQuery query;
  for (const Column& column : columns) query.fields.push_back(*column.field);
  const bool givesRows = !select.isDistinct && scope.tables().size() == 1;
  if (givesRows) query.rowsOf = scope.tables().front();
  const std::string fields = columnList(columns);
  std::string& sql = query.text.sql;
  sql = "SELECT " + (select.isDistinct ? "DISTINCT " + fields : givesRows ? rowNumberList(scope) : fields);
  sql += " FROM " + tableList(scope);
  if (select.where) sql += " WHERE " + ConditionWriter(query.text).write(*select.where, scope);
  sql += " ORDER BY " + (select.isDistinct ? fields : rowNumberList(scope));
  return query;
}

EngineDelete generateDelete(const SqlDelete& statement) {
  const Scope scope({statement.table}, nullptr);
  EngineDelete result{{}, scope.tables().front()};
  result.text.sql = "DELETE FROM " + tableList(scope);
  if (statement.where) result.text.sql += " WHERE " + ConditionWriter(result.text).write(*statement.where, scope);
  return result;
}

}  // namespace pantrigo
