#pragma once

#include <span>
#include <string>
#include <string_view>

namespace pantrigo {

// The exchange file: tagged lines, a block a recipe from "00:" to "99:". This is the one table of its tags.

/// What a tag's value is.
enum class TagKind { Title, Category, Value, Memo, Link, Picture, End };

struct ExchangeTag {
  /// Two digits and a colon.
  std::string_view tag;
  TagKind kind;
  /// The field of `Recipe`, or for categories and links the category kind; empty otherwise.
  std::string_view name;
  /// Whether a category that is not found is also sought with an "s" behind it.
  bool alsoPlural = false;
};

/// All tags in the order in which they are written.
[[nodiscard]] std::span<const ExchangeTag> exchangeTags();

/// The tag that a line begins with; null for any other.
[[nodiscard]] const ExchangeTag* findExchangeTag(std::string_view tag);

/// A memo on one line: CR becomes "!" and LF "~".
[[nodiscard]] std::string encodeMemo(std::string_view memo);

/// Turns each "!~" back into CR LF.
[[nodiscard]] std::string decodeMemo(std::string_view payload);

}  // namespace pantrigo
