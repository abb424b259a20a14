#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the detail window's list of ingredients, which open the ingredient dialog.

/// A row was picked, also by the dialog itself, which then stays as it is.
void lstIngredient_Click(Run& run);
/// An empty list offers a first row, once for a recipe whose ingredients were not changed yet.
void lstIngredient_GotFocus(Run& run);
/// A press on an empty list always does.
void lstIngredient_MouseDown(Run& run);

/// Makes the lines anew from the rows of the open recipe; no line is current then.
void rebuildLines(Run& run);

}  // namespace pantrigo
