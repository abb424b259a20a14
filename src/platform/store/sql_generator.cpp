#include "platform/store/sql_generator.h"

#include <algorithm>
#include <span>

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

/// The tables that a condition may name: those of its own FROM list, and of the queries around it.
class Scope {
 public:
  Scope(const std::vector<std::string>& tables, const Scope* outer) : outer_(outer) {
    for (const std::string& name : tables) {
      const TableDescription* table = &requireTable(name);
      if (contains(*table)) throw RuntimeError(store_error::sqlSyntax);
      tables_.push_back(table);
    }
  }

  [[nodiscard]] const std::vector<const TableDescription*>& tables() const { return tables_; }

  [[nodiscard]] bool contains(const TableDescription& table) const {
    return std::ranges::find(tables_, &table) != tables_.end();
  }

  [[nodiscard]] bool sees(const TableDescription& table) const {
    return contains(table) || (outer_ != nullptr && outer_->sees(table));
  }

 private:
  std::vector<const TableDescription*> tables_;
  const Scope* outer_;
};

/// A field that a name stands for.
struct Column {
  const TableDescription& table;
  const FieldDescription& field;

  [[nodiscard]] std::string text() const { return std::string(table.name) + "." + std::string(field.name); }
  [[nodiscard]] bool isText() const { return field.type == FieldType::Text || field.type == FieldType::Memo; }
};

Column resolve(const SqlField& name, const Scope& scope) {
  const TableDescription* table = findTable(name.table);
  const int place = table == nullptr ? -1 : findField(*table, name.field);
  if (place < 0 || !scope.sees(*table)) throw RuntimeError(store_error::sqlSyntax);
  return {*table, table->fields[static_cast<std::size_t>(place)]};
}

std::string tableList(const Scope& scope) {
  return nameList(scope.tables(), [](const TableDescription* table) { return table->name; });
}

/// Writes conditions, and collects their literals as parameters.
class ConditionWriter {
 public:
  explicit ConditionWriter(EngineText& text) : text_(text) {}

  [[nodiscard]] std::string write(const SqlCondition& condition, const Scope& scope) {
    return std::visit([&](const auto& content) { return one(content, scope); }, condition.content);
  }

 private:
  std::string one(const SqlComparison& comparison, const Scope& scope) {
    const std::string left = operand(comparison.left, scope);
    return left + " " + comparison.sign + " " + operand(comparison.right, scope);
  }

  std::string one(const SqlLike& like, const Scope& scope) {
    const Column column = resolve(like.field, scope);
    if (!column.isText()) throw RuntimeError(store_error::sqlSyntax);
    const std::string pattern = parameter(std::make_unique<LikePattern>(like.pattern));
    return std::string(matchesFunctionName) + "(" + pattern + ", " + column.text() + ")";
  }

  /// A row of the inner query whose field equals the literal: so the field's own order of texts decides.
  std::string one(const SqlIn& in, const Scope& outer) {
    const Scope scope(in.select->tables, &outer);
    const std::string field = resolve(in.select->fields.front(), scope).text();
    const std::string where = in.select->where ? "(" + write(*in.select->where, scope) + ") AND " : "";
    const std::string equal = field + " = " + literal(in.literal);
    return "EXISTS (SELECT 1 FROM " + tableList(scope) + " WHERE " + where + equal + ")";
  }

  std::string one(const SqlJoined& joined, const Scope& scope) { return balanced(joined, joined.conditions, scope); }

  /// Joins halves of halves: the engine limits how deep a condition may nest, and a plain row of them nests with each.
  std::string balanced(const SqlJoined& joined, std::span<const SqlCondition> conditions, const Scope& scope) {
    if (conditions.size() == 1) return "(" + write(conditions.front(), scope) + ")";
    const std::size_t half = conditions.size() / 2;
    const std::string left = balanced(joined, conditions.first(half), scope);
    const std::string right = balanced(joined, conditions.subspan(half), scope);
    return "(" + left + (joined.word == SqlJoined::Word::And ? " AND " : " OR ") + right + ")";
  }

  std::string operand(const SqlOperand& operand, const Scope& scope) {
    if (const auto* field = std::get_if<SqlField>(&operand)) return resolve(*field, scope).text();
    return literal(std::get<SqlLiteral>(operand));
  }

  std::string literal(const SqlLiteral& literal) {
    return std::visit([this](const auto& content) { return parameter(content); }, literal);
  }

  template <class Content>
  std::string parameter(Content content) {
    text_.parameters.emplace_back(std::move(content));
    return "?" + plainText(static_cast<long>(text_.parameters.size()));
  }

  EngineText& text_;
};

std::vector<Column> selectedColumns(const SqlSelect& select, const Scope& scope) {
  std::vector<Column> columns;
  for (const SqlField& name : select.fields) {
    const Column column = resolve(name, scope);
    columns.push_back(column);
  }
  if (!select.fields.empty()) return columns;
  // "*" over several tables would have two fields of one name.
  if (scope.tables().size() != 1) throw RuntimeError(store_error::sqlSyntax);
  const TableDescription& table = *scope.tables().front();
  for (const FieldDescription& field : table.fields) columns.push_back({table, field});
  return columns;
}

std::string columnList(const std::vector<Column>& columns) {
  return nameList(columns, [](const Column& column) { return column.text(); });
}

std::string rowNumberList(const Scope& scope) {
  return nameList(scope.tables(),
                  [](const TableDescription* table) { return std::string(table->name) + "." + rowNumberColumn; });
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

EngineQuery generateQuery(const SqlSelect& select) {
  const Scope scope(select.tables, nullptr);
  const std::vector<Column> columns = selectedColumns(select, scope);
  EngineQuery query;
  for (const Column& column : columns) query.fields.push_back(column.field);
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
