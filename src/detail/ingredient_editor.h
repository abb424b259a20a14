#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the ingredient dialog. It works on the rows of the open recipe and on the detail window's list, whose line
// of the same number is the current one; the store is left alone.

/// Fills the unit box, shows the row of the current line as it was entered, or empty boxes, and places the dialog.
void frmIngredient_Load(Run& run);
/// The first box to be filled is the quantity.
void frmIngredient_Activate(Run& run);
/// Esc leaves the dialog.
void frmIngredient_KeyPress(Run& run, int key);
/// Leaves the dialog. Rows that were added or changed stay.
void leaveIngredient(Run& run);

/// Reminds of the number of people that the quantities are for.
void txtQuantity_GotFocus(Run& run);
/// Tells that the rows still have to be saved with the recipe.
void cmbUnit_GotFocus(Run& run);

/// Whether unit and quantity can be taken; reports what can't, with the focus on its box.
[[nodiscard]] bool funValidIngredient(Run& run);
/// Empties the four boxes; focus on the quantity.
void subClearIngredient(Run& run);

// Each does nothing while all four boxes are empty; the last two also without a current line.

/// Puts the typed row behind the last line.
void addIngredient(Run& run);
/// Writes the typed row over that of the current line.
void updateIngredient(Run& run);
/// Takes the row of the current line out, and shows the one that follows it, or the last one.
void deleteIngredient(Run& run);

// Each goes to the row before or behind the current one, if there is one, without saving what was typed. Without a
// current line the row behind is the first.
void previousIngredient(Run& run);
void nextIngredient(Run& run);

}  // namespace pantrigo
