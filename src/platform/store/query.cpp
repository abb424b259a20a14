#include "platform/store/query.h"

#include "platform/store/field_values.h"
#include "platform/store/query_cursors.h"
#include "platform/store/sql_generator.h"
#include "platform/store/sql_lexer.h"
#include "platform/store/sql_parser.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// A source of a single word can only be meant as a table's name.
void refuseUnknownTable(std::string_view source) {
  const std::vector<SqlToken> tokens = lexSql(source);
  const bool isName = tokens.size() == 2 && tokens.front().kind == SqlToken::Kind::Word;
  if (isName) throw RuntimeError(store_error::noSuchTable);
}

std::vector<std::int64_t> readRowNumbers(Statement& statement) {
  std::vector<std::int64_t> numbers;
  while (statement.step()) numbers.push_back(statement.whole(0));
  return numbers;
}

PackedRows readRows(Statement& statement, const std::vector<FieldDescription>& fields) {
  PackedRows rows;
  while (statement.step()) {
    rows.beginRow();
    for (std::size_t column = 0; column < fields.size(); ++column) {
      rows.append(readValue(statement, static_cast<int>(column), fields[column].type));
    }
  }
  return rows;
}

}  // namespace

std::shared_ptr<Cursor> openQuery(const std::shared_ptr<Database::State>& state, std::string_view sql) {
  refuseUnknownTable(sql);
  EngineQuery query = generateQuery(parseSelect(sql));
  Running statement(state->connection().queryStatement(query.text.sql));
  query.text.bindTo(*statement);
  if (query.rowsOf != nullptr) {
    return std::make_shared<RowsCursor>(state, *query.rowsOf, std::move(query.fields), readRowNumbers(*statement));
  }
  PackedRows rows = readRows(*statement, query.fields);
  return std::make_shared<ResultCursor>(state, std::move(query.fields), std::move(rows));
}

void executeDelete(Database::State& state, std::string_view sql) {
  const EngineDelete generated = generateDelete(parseDelete(sql));
  state.connection().requireWritable();
  TableAccess& access = state.access(*generated.table);
  access.beforeRemoval();
  Running statement(state.connection().queryStatement(generated.text.sql));
  generated.text.bindTo(*statement);
  statement->run();
  access.noteChange();
}

}  // namespace pantrigo
