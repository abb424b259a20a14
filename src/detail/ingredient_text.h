#pragma once

#include <string>

#include "core/run.h"

namespace pantrigo {

/// The ingredient rows as the store keeps them: six fields a row, each ended by one "~", the base amount first. As many
/// rows as the list has lines; their columns 1 and 2 become the base amount of what was entered, by the options of the
/// moment. Error 13 for a quantity that does not convert, and the other errors of `subConvertToBase`.
[[nodiscard]] std::string storedIngredients(Run& run);

}  // namespace pantrigo
