#include "platform/store/query.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "platform/store/distinct_cursor.h"
#include "platform/store/field_values.h"
#include "platform/store/names.h"
#include "platform/store/query_cursors.h"
#include "platform/store/row_search.h"
#include "platform/store/sql_generator.h"
#include "platform/store/sql_lexer.h"
#include "platform/store/sql_parser.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// A source of a single word can only be meant as a table's name.
void refuseUnknownTable(std::string_view source) {
  if (source.find_first_of("'(=") != std::string_view::npos) return;
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

/// Puts the id itself in the place of a look-up that finds one row, in the tests within a membership: so the category's
/// name is not sought again for each recipe.
void settleLookUps(Connection& connection, Membership& membership) {
  const auto settle = [&](Membership& inner) {
    settleLookUps(connection, inner);
    if (!isLookUp(inner)) return false;
    const EngineText text = memberValuesText(inner);
    Running statement(connection.queryStatement(text.sql));
    text.bindTo(*statement);
    if (!statement->step() || statement->isNull(0)) return false;
    const double id = statement->number(0);
    if (statement->step()) return false;
    const SqlField field{std::string(inner.outer.table->name), std::string(inner.outer.field->name)};
    membership.conditions.push_back({SqlComparison{field, "=", SqlLiteral(id)}});
    return true;
  };
  std::erase_if(membership.memberships, settle);
}

bool exceeds(Connection& connection, const Membership& membership, std::int64_t limit) {
  const EngineText text = membershipExceedsText(membership);
  Running statement(connection.queryStatement(text.sql));
  text.bindTo(*statement);
  statement->bindWhole(static_cast<int>(text.parameters.size()) + 1, limit);
  return statement->step();
}

/// Which of the memberships has the fewest rows, give or take a factor of two. All are counted up to a limit that grows
/// until one of them stays below, so the work goes by the smallest.
std::size_t smallestMembership(Connection& connection, const std::vector<Membership>& memberships) {
  constexpr std::int64_t firstLimit = 512;
  constexpr std::int64_t limitGrowth = 8;
  std::vector<std::size_t> candidates(memberships.size());
  std::iota(candidates.begin(), candidates.end(), std::size_t{0});
  const auto below = [&](std::int64_t limit) {
    std::vector<std::size_t> found;
    const auto staysBelow = [&](std::size_t place) { return !exceeds(connection, memberships[place], limit); };
    std::ranges::copy_if(candidates, std::back_inserter(found), staysBelow);
    return found;
  };
  std::int64_t limit = firstLimit;
  for (std::vector<std::size_t> found; candidates.size() > 1; limit *= limitGrowth) {
    found = below(limit);
    if (found.empty()) continue;
    candidates = std::move(found);
    break;
  }
  while (candidates.size() > 1 && limit > 1) {
    limit /= 2;
    std::vector<std::size_t> found = below(limit);
    if (found.empty()) break;
    candidates = std::move(found);
  }
  return candidates.empty() ? 0 : candidates.front();
}

std::vector<std::int64_t> findRows(Connection& connection, RowSearch search) {
  for (Membership& membership : search.memberships) settleLookUps(connection, membership);
  const EngineText text = rowSearchText(search, smallestMembership(connection, search.memberships));
  Running statement(connection.queryStatement(text.sql));
  text.bindTo(*statement);
  return readRowNumbers(*statement);
}

/// The index that holds all fields of a result and puts them in order; null when there is none.
const IndexDescription* orderOf(const TableDescription& table, const std::vector<FieldDescription>& fields) {
  const auto found = std::ranges::find_if(table.indexes, [&](const IndexDescription& index) {
    const bool isWhole = fields.size() == 1 || (fields.size() == 2 && isSameName(fields[1].name, index.carried));
    return isWhole && index.keyFields[1].empty() && isSameName(fields[0].name, index.keyFields[0]);
  });
  return found == table.indexes.end() ? nullptr : &*found;
}

}  // namespace

std::shared_ptr<Cursor> openQuery(const std::shared_ptr<Database::State>& state, std::string_view sql) {
  refuseUnknownTable(sql);
  Connection& connection = state->connection();
  SqlSelect select = parseSelect(sql);
  EngineQuery query = generateQuery(select);
  if (auto search = makeRowSearch(std::move(select))) {
    if (const IndexDescription* index = orderOf(*search->table, query.fields)) {
      std::vector<std::int64_t> rows = findRows(connection, std::move(*search));
      return std::make_shared<DistinctCursor>(state, *search->table, *index, std::move(query.fields), std::move(rows));
    }
  }
  Running statement(connection.queryStatement(query.text.sql));
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
