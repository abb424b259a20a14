#include "platform/store/sql_lexer.h"

#include <optional>

#include "platform/store/store_errors.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Lexer {
 public:
  explicit Lexer(std::string_view sql) : sql_(sql) {}

  std::vector<SqlToken> run() {
    std::vector<SqlToken> tokens;
    do {
      tokens.push_back(next());
    } while (tokens.back().kind != SqlToken::Kind::End);
    return tokens;
  }

 private:
  /// The character `ahead` of the present place; a zero byte behind the end.
  [[nodiscard]] char at(std::size_t ahead = 0) const {
    return place_ + ahead < sql_.size() ? sql_[place_ + ahead] : '\0';
  }

  [[nodiscard]] bool isAtEnd() const { return place_ >= sql_.size(); }

  SqlToken next() {
    while (isBlank(at())) ++place_;
    if (isAtEnd()) return {SqlToken::Kind::End, {}};
    if (isLetter(at())) return word();
    // No field's name begins with a digit, so a point before one begins a number.
    if (isDigit(at()) || (at() == '.' && isDigit(at(1)))) return number();
    if (at() == '\'') return text();
    return symbol();
  }

  SqlToken word() {
    const std::size_t start = place_;
    while (isLetter(at()) || isDigit(at())) ++place_;
    return {SqlToken::Kind::Word, std::string(sql_.substr(start, place_ - start))};
  }

  void skipDigits() {
    while (isDigit(at())) ++place_;
  }

  SqlToken number() {
    const std::size_t start = place_;
    skipDigits();
    if (at() == '.') {
      ++place_;
      skipDigits();
    }
    if (at() == 'e' || at() == 'E') {
      const std::size_t signLength = at(1) == '+' || at(1) == '-' ? 1 : 0;
      if (isDigit(at(1 + signLength))) {
        place_ += 1 + signLength;
        skipDigits();
      }
    }
    return numberToken(sql_.substr(start, place_ - start));
  }

  static SqlToken numberToken(std::string_view digits) {
    const std::optional<double> number = toNumber(digits);
    if (!number.has_value()) throw RuntimeError(store_error::sqlSyntax);
    return {SqlToken::Kind::Number, std::string(digits), *number};
  }

  SqlToken text() {
    SqlToken token{SqlToken::Kind::Text, {}};
    for (++place_; !isAtEnd(); ++place_) {
      if (at() != '\'') {
        token.text += at();
      } else if (at(1) == '\'') {
        token.text += '\'';
        ++place_;
      } else {
        ++place_;
        return token;
      }
    }
    throw RuntimeError(store_error::sqlSyntax);
  }

  SqlToken symbol() {
    for (const std::string_view pair : {"<=", ">=", "<>"}) {
      if (sql_.substr(place_, pair.size()) == pair) return symbolToken(pair);
    }
    constexpr std::string_view symbols = "(),.!*+-=<>";
    const std::size_t known = symbols.find(at());
    if (known == std::string_view::npos) throw RuntimeError(store_error::sqlSyntax);
    return symbolToken(symbols.substr(known, 1));
  }

  SqlToken symbolToken(std::string_view symbol) {
    place_ += symbol.size();
    return {SqlToken::Kind::Symbol, std::string(symbol)};
  }

  std::string_view sql_;
  std::size_t place_ = 0;
};

}  // namespace

std::vector<SqlToken> lexSql(std::string_view sql) {
  return Lexer(sql).run();
}

}  // namespace pantrigo
