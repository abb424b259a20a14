#include "platform/store/sql_parser.h"

#include <algorithm>
#include <array>

#include "platform/store/names.h"
#include "platform/store/sql_lexer.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// Brackets nest no deeper than this; the program's own texts need three levels.
constexpr int deepestNesting = 50;

constexpr std::array<std::string_view, 10> reservedWords{"select", "distinct", "from", "where", "and",
                                                         "or",     "like",     "in",   "true",  "delete"};

constexpr std::array<std::string_view, 6> comparisonSigns{"=", "<>", "<", ">", "<=", ">="};

class Parser {
 public:
  explicit Parser(std::string_view sql) : tokens_(lexSql(sql)) {}

  SqlSelect wholeSelect() {
    SqlSelect result = select();
    expectEnd();
    return result;
  }

  SqlDelete wholeDelete() {
    SqlDelete result;
    expectWord("delete");
    expectWord("from");
    result.table = name();
    result.where = whereClause();
    expectEnd();
    return result;
  }

 private:
  [[noreturn]] static void fail() { throw RuntimeError(store_error::sqlSyntax); }

  [[nodiscard]] const SqlToken& token() const { return tokens_[place_]; }
  [[nodiscard]] bool isKind(SqlToken::Kind kind) const { return token().kind == kind; }
  [[nodiscard]] bool isWord(std::string_view word) const {
    return isKind(SqlToken::Kind::Word) && isSameName(token().text, word);
  }
  [[nodiscard]] bool isSymbol(std::string_view symbol) const {
    return isKind(SqlToken::Kind::Symbol) && token().text == symbol;
  }

  bool takeWord(std::string_view word) {
    const bool isTaken = isWord(word);
    if (isTaken) ++place_;
    return isTaken;
  }
  bool takeSymbol(std::string_view symbol) {
    const bool isTaken = isSymbol(symbol);
    if (isTaken) ++place_;
    return isTaken;
  }
  void expectWord(std::string_view word) {
    if (!takeWord(word)) fail();
  }
  void expectSymbol(std::string_view symbol) {
    if (!takeSymbol(symbol)) fail();
  }
  void expectEnd() const {
    if (!isKind(SqlToken::Kind::End)) fail();
  }

  std::string name() {
    if (!isKind(SqlToken::Kind::Word)) fail();
    const bool isReserved = std::ranges::any_of(reservedWords, [this](std::string_view word) { return isWord(word); });
    if (isReserved) fail();
    return tokens_[place_++].text;
  }

  SqlField field() {
    SqlField result;
    result.table = name();
    if (!takeSymbol(".") && !takeSymbol("!")) fail();
    result.field = name();
    return result;
  }

  SqlSelect select() {
    SqlSelect result;
    expectWord("select");
    result.isDistinct = takeWord("distinct");
    if (!takeSymbol("*")) {
      do {
        result.fields.push_back(field());
      } while (takeSymbol(","));
    }
    expectWord("from");
    do {
      result.tables.push_back(name());
    } while (takeSymbol(","));
    result.where = whereClause();
    return result;
  }

  std::optional<SqlCondition> whereClause() {
    if (!takeWord("where")) return std::nullopt;
    return anyOf();
  }

  SqlCondition anyOf() {
    return joined(SqlJoined::Word::Or, "or", [this] { return allOf(); });
  }

  SqlCondition allOf() {
    return joined(SqlJoined::Word::And, "and", [this] { return condition(); });
  }

  template <class Part>
  SqlCondition joined(SqlJoined::Word kind, std::string_view word, Part part) {
    SqlCondition first = part();
    if (!isWord(word)) return first;
    SqlJoined result{kind, {}};
    result.conditions.push_back(std::move(first));
    while (takeWord(word)) result.conditions.push_back(part());
    return {std::move(result)};
  }

  SqlCondition condition() {
    if (isSymbol("(")) return bracketed();
    SqlOperand left = operand();
    if (takeWord("like")) return like(left);
    if (takeWord("in")) return in(left);
    return comparison(std::move(left));
  }

  /// Counts how deep the brackets nest while it lives.
  class Nesting {
   public:
    explicit Nesting(int& depth) : depth_(depth) {
      if (depth_ >= deepestNesting) fail();
      ++depth_;
    }
    ~Nesting() { --depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    int& depth_;
  };

  SqlCondition bracketed() {
    const Nesting nesting(depth_);
    expectSymbol("(");
    SqlCondition inner = anyOf();
    expectSymbol(")");
    return inner;
  }

  SqlCondition like(const SqlOperand& left) {
    const auto* leftField = std::get_if<SqlField>(&left);
    if (leftField == nullptr || !isKind(SqlToken::Kind::Text)) fail();
    return {SqlLike{*leftField, tokens_[place_++].text}};
  }

  SqlCondition in(const SqlOperand& left) {
    const Nesting nesting(depth_);
    const auto* literalLeft = std::get_if<SqlLiteral>(&left);
    if (literalLeft == nullptr) fail();
    expectSymbol("(");
    SqlIn result{*literalLeft, std::make_unique<SqlSelect>(select())};
    expectSymbol(")");
    if (result.select->fields.size() != 1) fail();
    return {std::move(result)};
  }

  SqlCondition comparison(SqlOperand left) {
    const bool isSign =
        isKind(SqlToken::Kind::Symbol) && std::ranges::find(comparisonSigns, token().text) != comparisonSigns.end();
    if (!isSign) fail();
    std::string sign = tokens_[place_++].text;
    SqlOperand right = operand();
    // Two literals have no column between them whose order of texts could decide.
    if (std::holds_alternative<SqlLiteral>(left) && std::holds_alternative<SqlLiteral>(right)) fail();
    return {SqlComparison{std::move(left), std::move(sign), std::move(right)}};
  }

  SqlOperand operand() {
    if (isKind(SqlToken::Kind::Text)) return SqlLiteral(tokens_[place_++].text);
    if (takeWord("true")) return SqlLiteral(-1.0);
    if (takeWord("false")) return SqlLiteral(0.0);
    const bool isNegative = isSymbol("-");
    if (takeSymbol("-") || takeSymbol("+") || isKind(SqlToken::Kind::Number)) {
      if (!isKind(SqlToken::Kind::Number)) fail();
      const double number = tokens_[place_++].number;
      return SqlLiteral(isNegative ? -number : number);
    }
    return field();
  }

  std::vector<SqlToken> tokens_;
  std::size_t place_ = 0;
  int depth_ = 0;
};

}  // namespace

SqlSelect parseSelect(std::string_view sql) {
  return Parser(sql).wholeSelect();
}

SqlDelete parseDelete(std::string_view sql) {
  return Parser(sql).wholeDelete();
}

}  // namespace pantrigo
