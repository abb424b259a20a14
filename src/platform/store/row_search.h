#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/store/schema.h"
#include "platform/store/sql_conditions.h"
#include "platform/store/sql_syntax.h"

namespace pantrigo {

/// A test of a row by rows of another table: among those that satisfy the conditions, one has in `inner` what the row
/// has in `outer`. So a recipe has a category.
struct Membership {
  Column outer;
  Column inner;
  /// On the inner column's table alone.
  std::vector<SqlCondition> conditions = {};
  /// Tests that its rows have to pass in turn.
  std::vector<Membership> memberships = {};
};

/// The rows of one table that a distinct query asks for. What the query writes as joins and as inner queries are tests
/// of its rows here, since a row counts once however many others it meets.
struct RowSearch {
  const TableDescription* table;
  /// On that table alone.
  std::vector<SqlCondition> conditions = {};
  std::vector<Membership> memberships = {};
};

/// What a distinct query with names that are all known searches for, where it can be told so: its fields are of one
/// table, and each other table is tied to the rest by a single equality of whole numbers, those to that table by one
/// that has an index.
[[nodiscard]] std::optional<RowSearch> makeRowSearch(SqlSelect select);

/// Whether a membership only looks one row up by its key, as a category by its id.
[[nodiscard]] bool isLookUp(const Membership& membership);

/// Text that gives the values, in the inner column, which satisfy the membership.
[[nodiscard]] EngineText memberValuesText(const Membership& membership);

/// Text that gives a row when a membership has more rows than the parameter behind the text's own ones says: those rows
/// decide how much work it is when the search starts from it.
[[nodiscard]] EngineText membershipExceedsText(const Membership& membership);

/// Text that gives the numbers of the rows that the search finds, each once, in no order. It starts from the given one
/// of the memberships; a search without any goes through the whole table.
[[nodiscard]] EngineText rowSearchText(const RowSearch& search, std::size_t firstMembership);

}  // namespace pantrigo
