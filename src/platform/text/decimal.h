#pragma once

#include <string>

namespace pantrigo {

/// How many significant digits the text of a single and of a double has.
inline constexpr int singleDigits = 7;
inline constexpr int doubleDigits = 15;

/// A number as its significant decimal digits, without trailing zeros ("0" for nought): digits[0] stands for
/// 10^exponent.
struct Decimal {
  bool negative = false;
  std::string digits = "0";
  int exponent = 0;

  [[nodiscard]] bool isZero() const { return digits == "0"; }
};

/// Rounds a finite number to that many significant digits (1 to 20), halves away from zero.
[[nodiscard]] Decimal toDecimal(double value, int significantDigits);

}  // namespace pantrigo
