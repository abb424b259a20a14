#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pantrigo {

/// A run of plain characters of a `like` pattern, to be found in UTF-8 texts without regard to letter case. It compares
/// the bytes of the text with those of every character that is equal to the sought one, so that nothing is decoded.
/// Characters of valid UTF-8 never overlap: where the bytes of one stand, that character stands.
class PlainRun {
 public:
  /// Takes folded characters. None when one of them has no bytes of its own in valid UTF-8, or all of them have too
  /// many variants.
  [[nodiscard]] static std::optional<PlainRun> make(std::u32string_view folded);

  struct Span {
    std::size_t begin;
    std::size_t end;
  };

  // Places are those of bytes. A run without characters fits everywhere.

  /// Where the run ends that begins at that place; npos when it doesn't fit there.
  [[nodiscard]] std::size_t endFrom(std::string_view text, std::size_t begin) const;
  /// Where the run begins that ends at that place; npos when it doesn't fit there.
  [[nodiscard]] std::size_t beginBefore(std::string_view text, std::size_t end) const;
  /// The first place where the run fits, from `from` on.
  [[nodiscard]] std::optional<Span> find(std::string_view text, std::size_t from) const;

 private:
  /// The bytes of one character and of those that differ from it only in case.
  using Letter = std::vector<std::string>;

  [[nodiscard]] static std::size_t after(const Letter& letter, std::string_view text, std::size_t place);
  [[nodiscard]] static std::size_t before(const Letter& letter, std::string_view text, std::size_t place);
  void chooseAnchor();

  std::vector<Letter> letters_;
  /// The letter that is looked for first, since it is seldom, and the bytes that it can begin with.
  std::size_t anchor_ = 0;
  std::string anchorBytes_;
};

}  // namespace pantrigo
