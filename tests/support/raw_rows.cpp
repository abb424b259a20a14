#include "support/raw_rows.h"

#include <cstdint>

#include "platform/store/counters.h"
#include "platform/store/field_values.h"
#include "platform/store/schema_sql.h"
#include "platform/store/store_errors.h"
#include "platform/store/store_state.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

std::size_t fieldPlace(const TableDescription& table, std::string_view name) {
  const int place = findField(table, name);
  if (place < 0) raiseNamed(store_error::noSuchField, name);
  return static_cast<std::size_t>(place);
}

/// Writes the given fields into their places among a table's values.
FieldSet convert(const TableDescription& table, const RawRow& row, std::vector<Value>& values) {
  FieldSet written = 0;
  for (const auto& [name, value] : row) {
    const std::size_t place = fieldPlace(table, name);
    values[place] = toFieldValue(table.fields[place].type, value);
    written |= fieldBit(static_cast<int>(place));
  }
  return written;
}

std::vector<std::int64_t> findRows(const Connection& connection, const TableDescription& table, std::string_view field,
                                   const Value& value) {
  const FieldDescription& description = table.fields[fieldPlace(table, field)];
  const Value sought = toKeyValue(description.type, value);
  Statement statement(connection.handle(), std::string("SELECT ") + rowNumberColumn + " FROM " +
                                               std::string(table.name) + " WHERE " + std::string(description.name) +
                                               " IS ?1 ORDER BY 1");
  statement.bind(1, sought);
  std::vector<std::int64_t> rows;
  while (statement.step()) rows.push_back(statement.whole(0));
  return rows;
}

void raiseCounter(Database::State& state, const TableDescription& table, const std::vector<Value>& values) {
  const std::string field(idFieldOf(table));
  if (field.empty()) return;
  const Value& id = values[fieldPlace(table, field)];
  if (id.isNull()) return;
  Running raise(
      state.connection().statement("UPDATE System SET " + field + " = ?1 WHERE ifnull(" + field + ", 0) < ?1"));
  raise->bind(1, id);
  raise->run();
  state.access("System").noteChange();
}

}  // namespace

std::vector<RawRow> rawRows(const Database& database, std::string_view tableName) {
  const Database::State& state = StoreAccess::state(database);
  const TableDescription& table = state.access(tableName).table();
  const std::string names = nameList(table.fields, [](const FieldDescription& field) { return field.name; });
  Statement statement(state.connection().handle(),
                      "SELECT " + names + " FROM " + std::string(table.name) + " ORDER BY " + rowNumberColumn);
  std::vector<RawRow> rows;
  while (statement.step()) {
    RawRow& row = rows.emplace_back();
    int column = 0;
    for (const FieldDescription& field : table.fields) {
      row.emplace(std::string(field.name), readValue(statement, column++, field.type));
    }
  }
  return rows;
}

void addRawRow(const Database& database, std::string_view tableName, const RawRow& row) {
  Database::State& state = StoreAccess::state(database);
  TableAccess& access = state.access(tableName);
  std::vector<Value> values;
  for (const FieldDescription& field : access.table().fields) values.push_back(defaultOf(field.type));
  convert(access.table(), row, values);
  access.insert(values);
  raiseCounter(state, access.table(), values);
}

long changeRawRows(const Database& database, std::string_view tableName, std::string_view field, const Value& value,
                   const RawRow& changes) {
  Database::State& state = StoreAccess::state(database);
  TableAccess& access = state.access(tableName);
  std::vector<Value> values(access.table().fields.size());
  const FieldSet written = convert(access.table(), changes, values);
  long count = 0;
  for (const std::int64_t row : findRows(state.connection(), access.table(), field, value)) {
    count += access.write(row, written, values) ? 1 : 0;
  }
  return count;
}

long removeRawRows(const Database& database, std::string_view tableName, std::string_view field, const Value& value) {
  Database::State& state = StoreAccess::state(database);
  TableAccess& access = state.access(tableName);
  long count = 0;
  for (const std::int64_t row : findRows(state.connection(), access.table(), field, value)) {
    count += access.remove(row) ? 1 : 0;
  }
  return count;
}

}  // namespace pantrigo
