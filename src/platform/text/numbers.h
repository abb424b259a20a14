#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pantrigo {

/// The leading-number reading: blanks, tabs and line feeds are skipped anywhere, a sign, digits, one point, an exponent
/// (E or D, either case, only when a digit follows) and the prefixes &H and &O are read; the reading stops at the first
/// other character. Gives 0 for a text without a leading number. Never fails.
[[nodiscard]] double Val(std::string_view text);

/// The numeric test: whether the whole text reads as one number by the platform's conversion.
[[nodiscard]] bool IsNumeric(std::string_view text);

/// The platform's whole-text conversion; nothing when `IsNumeric` is false. "(5)" is -5, "1,000" is 1000.
[[nodiscard]] std::optional<double> toNumber(std::string_view text);

/// The plain text form: no leading blank, "0." below 1, at most 7 significant digits for a single and 15 for a double,
/// scientific form from 10^7 (10^15) on and for small values that need more decimals than that.
[[nodiscard]] std::string plainText(float value);
[[nodiscard]] std::string plainText(double value);
[[nodiscard]] std::string plainText(long value);

/// The number-to-text routine: as `plainText`, with one blank before a value of 0 or more, and without the zero in
/// front of the point.
[[nodiscard]] std::string Str(float value);
[[nodiscard]] std::string Str(double value);

/// The double that the 7-digit text of a single names: 418.68 for 418.68f.
[[nodiscard]] double shortest(float value);

/// The text in the numeric test's narrower reading that the list query can take: outer blanks, sign, digits, one point,
/// exponent with E; and a value that a single can hold.
[[nodiscard]] bool isQueryNumber(std::string_view text);

/// The largest whole number not above the value.
[[nodiscard]] double Int(double value);

}  // namespace pantrigo
