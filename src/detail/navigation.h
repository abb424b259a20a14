#pragma once

#include "core/run.h"

namespace pantrigo {

// Navigation steps through the titles of the main window's list, never through the store. Changes are asked about
// first.

void subFirstRecipe(Run& run);
/// From the first row, and from no selection, lands on row 0.
void subPreviousRecipe(Run& run);
/// From the last row reloads it and stays.
void subNextRecipe(Run& run);
void subLastRecipe(Run& run);

}  // namespace pantrigo
