#pragma once

#include <string>
#include <string_view>

namespace pantrigo {

/// Upper and lower case, one character to one character, in no locale: a character whose partner would need more than
/// one character (sharp s) stays as it is.
[[nodiscard]] std::string UCase(std::string_view text);
[[nodiscard]] std::string LCase(std::string_view text);
[[nodiscard]] char32_t upperCase(char32_t character);
[[nodiscard]] char32_t lowerCase(char32_t character);

/// Cuts blanks (code 32) and nothing else, at both ends, in front, behind.
[[nodiscard]] std::string Trim(std::string_view text);
[[nodiscard]] std::string LTrim(std::string_view text);
[[nodiscard]] std::string RTrim(std::string_view text);

/// Simple case folding of one character, for comparisons that ignore case (`like`).
[[nodiscard]] char32_t foldCase(char32_t character);

/// All characters that fold to the given one, which is folded itself and comes first.
[[nodiscard]] std::u32string caseVariants(char32_t folded);

}  // namespace pantrigo
