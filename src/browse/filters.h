#pragma once

#include "core/run.h"

namespace pantrigo {

// The filters of the main window. Their controls are their only state.

/// Goes to the continued page, or back from it when its numbers are valid.
void lblFilters_Click(Run& run);
/// Flips a sign between "<=" and ">=".
void flipSign(Label& sign);
/// A tick clears the other filters and shuts them; without it they are open again.
void chkMeal_Click(Run& run);
/// Clears the filters and the tick for the meal.
void mnuClear_Click(Run& run);

/// Whether each numeric box is empty or holds a number that a query can take. The first one that doesn't is reported
/// and gets the focus; error 5 when it is hidden.
[[nodiscard]] bool funValidFiltersContinued(Run& run);

/// Empties and opens all filters but the tick for the meal, and shows the first page. Lists nothing.
void subClearFilters(Run& run);

}  // namespace pantrigo
