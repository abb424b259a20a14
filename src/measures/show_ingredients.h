#pragma once

#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// Takes each row of the table through scaling, conversion and rounding to a line: mode "s" into the ingredient list of
/// the detail window, "p" to the printer, "l" to the printer as a shopping list. `makes` is the recipe's `Makes`; such
/// a recipe isn't scaled. All errors are ignored, statement by statement. The rows are as they were afterwards.
void subShowIngredients(Run& run, std::string_view mode, const Value& makes);

}  // namespace pantrigo
