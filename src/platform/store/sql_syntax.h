#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pantrigo {

/// A field as an SQL text names it; table and field are parted by "." or "!".
struct SqlField {
  std::string table;
  std::string field;
};

/// A number (Yes/No as -1 or 0), or a text.
using SqlLiteral = std::variant<double, std::string>;

using SqlOperand = std::variant<SqlField, SqlLiteral>;

struct SqlCondition;
struct SqlSelect;

struct SqlComparison {
  SqlOperand left;
  /// "=", "<>", "<", ">", "<=" or ">=".
  std::string sign;
  SqlOperand right;
};

struct SqlLike {
  SqlField field;
  std::string pattern;
};

/// 'text' in (Select ...).
struct SqlIn {
  SqlLiteral literal;
  std::unique_ptr<SqlSelect> select;
};

/// Conditions that are joined by AND, or by OR.
struct SqlJoined {
  enum class Word { And, Or };
  Word word;
  std::vector<SqlCondition> conditions;
};

struct SqlCondition {
  std::variant<SqlComparison, SqlLike, SqlIn, SqlJoined> content;
};

struct SqlSelect {
  bool isDistinct = false;
  /// Empty for "*".
  std::vector<SqlField> fields;
  std::vector<std::string> tables;
  std::optional<SqlCondition> where;
};

struct SqlDelete {
  std::string table;
  std::optional<SqlCondition> where;
};

}  // namespace pantrigo
