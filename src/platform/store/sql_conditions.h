#pragma once

#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "platform/store/connection.h"
#include "platform/store/like.h"
#include "platform/store/schema.h"
#include "platform/store/sql_syntax.h"

namespace pantrigo {

/// A text for the engine, with what is to be bound to its parameters in order.
struct EngineText {
  using Parameter = std::variant<double, std::string, std::unique_ptr<LikePattern>>;

  std::string sql;
  std::vector<Parameter> parameters;

  /// The text has to live until the statement is reset.
  void bindTo(Statement& statement) const;
};

/// The tables that a condition may name: those of its own FROM list, and of the queries around it.
class Scope {
 public:
  /// Error 3078 for an unknown table, 3075 for one that stands in the list twice.
  Scope(const std::vector<std::string>& tables, const Scope* outer);

  [[nodiscard]] const std::vector<const TableDescription*>& tables() const { return tables_; }
  [[nodiscard]] bool contains(const TableDescription& table) const;
  [[nodiscard]] bool sees(const TableDescription& table) const;

 private:
  std::vector<const TableDescription*> tables_;
  const Scope* outer_;
};

/// A field that a name stands for.
struct Column {
  const TableDescription* table;
  const FieldDescription* field;

  [[nodiscard]] std::string text() const { return std::string(table->name) + "." + std::string(field->name); }
  [[nodiscard]] bool isText() const { return field->type == FieldType::Text || field->type == FieldType::Memo; }
  friend bool operator==(const Column&, const Column&) = default;
};

/// Error 3075 for an unknown field, and for one of a table that is out of sight.
[[nodiscard]] Column resolve(const SqlField& name, const Scope& scope);

/// The columns that a query gives, those that "*" stands for too.
[[nodiscard]] std::vector<Column> selectedColumns(const SqlSelect& select, const Scope& scope);

/// The tables of a FROM list, as a text.
[[nodiscard]] std::string tableList(const Scope& scope);

/// Writes conditions, and collects their literals as parameters.
class ConditionWriter {
 public:
  explicit ConditionWriter(EngineText& text) : text_(text) {}

  /// Errors: 3075 for an unknown field, one of a table that is out of sight, and a `like` on a field that holds no
  /// text; 3078 for an unknown table; 93 for an invalid pattern.
  [[nodiscard]] std::string write(const SqlCondition& condition, const Scope& scope);

 private:
  std::string one(const SqlComparison& comparison, const Scope& scope);
  std::string one(const SqlLike& like, const Scope& scope);
  std::string one(const SqlIn& in, const Scope& outer);
  std::string one(const SqlJoined& joined, const Scope& scope);
  std::string balanced(const SqlJoined& joined, std::span<const SqlCondition> conditions, const Scope& scope);
  std::string operand(const SqlOperand& operand, const Scope& scope);
  std::string literal(const SqlLiteral& literal);
  std::string parameter(EngineText::Parameter content);

  EngineText& text_;
};

}  // namespace pantrigo
