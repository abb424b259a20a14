#pragma once

#include <string_view>

namespace pantrigo {

// The plainest readings of how texts compare, for the characters that the model's recipes use; nothing of it is shared
// with the program.

/// The order of titles: below, at or above 0. Case does not count, trailing blanks don't either; accents count when
/// nothing else differs.
[[nodiscard]] int naiveOrder(std::string_view left, std::string_view right);

/// Whether a text equals another as categories do.
[[nodiscard]] bool naiveEqual(std::string_view left, std::string_view right);

/// Whether a whole text fits a pattern of characters, `*`, `?`, `#` and `[list]`. Case does not count.
[[nodiscard]] bool naiveLike(std::string_view text, std::string_view pattern);

}  // namespace pantrigo
