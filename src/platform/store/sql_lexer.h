#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pantrigo {

/// A piece of an SQL text.
struct SqlToken {
  enum class Kind {
    /// A name or a word of the language.
    Word,
    Number,
    /// What stood between apostrophes, doubled ones made single.
    Text,
    /// "(", ")", ",", ".", "!", "*", "+", "-", "=", "<", ">", "<=", ">=" or "<>".
    Symbol,
    End,
  };

  Kind kind;
  std::string text;
  double number = 0;
};

/// Cuts an SQL text of the program into tokens, the last of which is `End`. Error 3075 for a character that the
/// language does not have, an unclosed text, and a number beyond a double's range.
[[nodiscard]] std::vector<SqlToken> lexSql(std::string_view sql);

}  // namespace pantrigo
