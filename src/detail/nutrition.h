#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the nutrition dialog, which changes the working copy of the recipe on show.

void frmNutrition_Load(Run& run);
/// OK takes the nine numbers, or refuses a text that is none and stays open. The recipe counts as changed either way.
void takeNutritionValues(Run& run);
/// Empties the boxes; the values themselves change only by OK.
void clearNutrition(Run& run);
void cancelNutrition(Run& run);

}  // namespace pantrigo
