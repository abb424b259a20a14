#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/store/plain_run.h"

namespace pantrigo {

/// A pattern of the store's `like`: "*" stands for any run of characters, "?" for one character, "#" for one digit,
/// "[list]" for one character of the list and "[!list]" for one outside it, with ranges such as a-z. "%" and "_" are
/// plain characters. The whole text has to fit. Letter case does not count, accents do.
class LikePattern {
 public:
  /// Error 93 for an unclosed "[" and for a range that runs backwards.
  explicit LikePattern(std::string_view pattern);

  [[nodiscard]] bool matches(std::string_view text) const;

 private:
  struct Range {
    char32_t first;
    char32_t last;
  };

  /// What one character of the text has to be.
  struct Element {
    enum class Kind { Character, Any, Digit, OneOf, NoneOf };
    Kind kind;
    char32_t character = 0;
    std::vector<Range> ranges = {};
  };

  using Piece = std::vector<Element>;

  void findPlainRuns();
  [[nodiscard]] bool matchesPlain(std::string_view text) const;
  void addList(std::u32string_view list);
  static bool fits(const Element& element, char32_t character);
  // A text here is anything that gives its folded characters by their places.
  template <class Text>
  static bool fitsAt(const Piece& piece, const Text& text, std::size_t place);
  template <class Text>
  static std::size_t find(const Piece& piece, const Text& text, std::size_t from, std::size_t end);
  template <class Text>
  [[nodiscard]] bool matchesWhole(const Text& text) const;

  /// The parts between the "*"; a pattern without any has one.
  std::vector<Piece> pieces_;
  /// The same parts, when all of them are plain characters, which is what people seek.
  std::vector<PlainRun> plainRuns_;
};

}  // namespace pantrigo
