#include "platform/store/sql_conditions.h"

#include <algorithm>

#include "platform/store/schema_sql.h"
#include "platform/store/sql_functions.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

const TableDescription& requireTable(std::string_view name) {
  const TableDescription* table = findTable(name);
  if (table == nullptr) raiseNamed(store_error::noSuchTable, name);
  return *table;
}

}  // namespace

void EngineText::bindTo(Statement& statement) const {
  int number = 1;
  for (const Parameter& parameter : parameters) {
    if (const auto* text = std::get_if<std::string>(&parameter)) {
      statement.bindText(number, *text);
    } else if (const auto* pattern = std::get_if<std::unique_ptr<LikePattern>>(&parameter)) {
      statement.bindObject(number, pattern->get(), likePatternKind);
    } else {
      statement.bindNumber(number, std::get<double>(parameter));
    }
    ++number;
  }
}

Scope::Scope(const std::vector<std::string>& tables, const Scope* outer) : outer_(outer) {
  for (const std::string& name : tables) {
    const TableDescription* table = &requireTable(name);
    if (contains(*table)) throw RuntimeError(store_error::sqlSyntax);
    tables_.push_back(table);
  }
}

bool Scope::contains(const TableDescription& table) const {
  return std::ranges::find(tables_, &table) != tables_.end();
}

bool Scope::sees(const TableDescription& table) const {
  return contains(table) || (outer_ != nullptr && outer_->sees(table));
}

Column resolve(const SqlField& name, const Scope& scope) {
  const TableDescription* table = findTable(name.table);
  const int place = table == nullptr ? -1 : findField(*table, name.field);
  if (place < 0 || !scope.sees(*table)) throw RuntimeError(store_error::sqlSyntax);
  return {table, &table->fields[static_cast<std::size_t>(place)]};
}

std::vector<Column> selectedColumns(const SqlSelect& select, const Scope& scope) {
  std::vector<Column> columns;
  for (const SqlField& name : select.fields) columns.push_back(resolve(name, scope));
  if (!select.fields.empty()) return columns;
  // "*" over several tables would have two fields of one name.
  if (scope.tables().size() != 1) throw RuntimeError(store_error::sqlSyntax);
  const TableDescription& table = *scope.tables().front();
  for (const FieldDescription& field : table.fields) columns.push_back({&table, &field});
  return columns;
}

std::string tableList(const Scope& scope) {
  return nameList(scope.tables(), [](const TableDescription* table) { return table->name; });
}

std::string ConditionWriter::write(const SqlCondition& condition, const Scope& scope) {
  return std::visit([&](const auto& content) { return one(content, scope); }, condition.content);
}

std::string ConditionWriter::one(const SqlComparison& comparison, const Scope& scope) {
  const std::string left = operand(comparison.left, scope);
  return left + " " + comparison.sign + " " + operand(comparison.right, scope);
}

std::string ConditionWriter::one(const SqlLike& like, const Scope& scope) {
  const Column column = resolve(like.field, scope);
  if (!column.isText()) throw RuntimeError(store_error::sqlSyntax);
  const std::string pattern = parameter(std::make_unique<LikePattern>(like.pattern));
  return std::string(matchesFunctionName) + "(" + pattern + ", " + column.text() + ")";
}

/// A row of the inner query whose field equals the literal: so the field's own order of texts decides.
std::string ConditionWriter::one(const SqlIn& in, const Scope& outer) {
  const Scope scope(in.select->tables, &outer);
  const std::string field = resolve(in.select->fields.front(), scope).text();
  const std::string where = in.select->where ? "(" + write(*in.select->where, scope) + ") AND " : "";
  const std::string equal = field + " = " + literal(in.literal);
  return "EXISTS (SELECT 1 FROM " + tableList(scope) + " WHERE " + where + equal + ")";
}

std::string ConditionWriter::one(const SqlJoined& joined, const Scope& scope) {
  return balanced(joined, joined.conditions, scope);
}

/// Joins halves of halves: the engine limits how deep a condition may nest, and a plain row of them nests with each.
std::string ConditionWriter::balanced(const SqlJoined& joined, std::span<const SqlCondition> conditions,
                                      const Scope& scope) {
  if (conditions.size() == 1) return "(" + write(conditions.front(), scope) + ")";
  const std::size_t half = conditions.size() / 2;
  const std::string left = balanced(joined, conditions.first(half), scope);
  const std::string right = balanced(joined, conditions.subspan(half), scope);
  return "(" + left + (joined.word == SqlJoined::Word::And ? " AND " : " OR ") + right + ")";
}

std::string ConditionWriter::operand(const SqlOperand& operand, const Scope& scope) {
  if (const auto* field = std::get_if<SqlField>(&operand)) return resolve(*field, scope).text();
  return literal(std::get<SqlLiteral>(operand));
}

std::string ConditionWriter::literal(const SqlLiteral& literal) {
  return std::visit([this](const auto& content) { return parameter(content); }, literal);
}

std::string ConditionWriter::parameter(EngineText::Parameter content) {
  text_.parameters.push_back(std::move(content));
  return "?" + plainText(static_cast<long>(text_.parameters.size()));
}

}  // namespace pantrigo
