#pragma once

#include <string>
#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// Reads a quantity text: the part before the first listed fraction that it contains, trimmed, and that fraction's
/// decimal text. A text without a listed fraction comes back as it is. "1 1/2" gives "1.5", "1/2" gives ".5".
[[nodiscard]] std::string funFractionToDecimal(std::string_view text);

/// The amount of a quantity text: the leading number of the text when it holds no "/", else of its decimal text.
[[nodiscard]] double quantityAmount(std::string_view text);

/// The number as a single. Error 6 for one that no single holds.
[[nodiscard]] float toSingle(double number);

/// Rounds the part behind the whole number up to the step chosen in the options. Gives "0", "1" (the next whole
/// number), or the part as a fraction, respectively as a decimal text.
[[nodiscard]] std::string funPartFraction(Run& run, float amount);
[[nodiscard]] std::string funPartDecimal(Run& run, float amount);

/// Writes `gWorkQuantity` into `gQuantityText`, with fractions or decimals as the options say; an amount of 0 gives the
/// empty text. A whole number in fraction display begins with one blank.
void subFormatQuantity(Run& run);

}  // namespace pantrigo
