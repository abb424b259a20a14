#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the nutrition dialog, which changes the working copy of the recipe on show.

/// Shows the values, 0 as an empty box, and the energy in both units.
void frmNutrition_Load(Run& run);
/// OK takes the nine numbers, or refuses a text that is none and stays open. The recipe counts as changed either way.
void takeNutritionValues(Run& run);
/// Empties the boxes; the values themselves change only by OK.
void clearNutrition(Run& run);
/// Leaves the values as they are; the recipe's window keeps its edits.
void cancelNutrition(Run& run);

}  // namespace pantrigo
