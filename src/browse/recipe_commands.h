#pragma once

#include "core/run.h"

namespace pantrigo {

// Commands of the main window on one recipe.

/// Shows the detail window with a blank recipe.
void subOpenBlankDetail(Run& run);
/// Shows the recipe of the selected row in the detail window; a blank one when no row is selected.
void openSelectedRow(Run& run);
/// Shows the selected recipe in the detail window, or asks for a selection.
void subOpenSelected(Run& run);
/// Deletes the selected recipe after a question, or asks for a selection.
void subDeleteSelected(Run& run);
/// Deletes the recipe `gSelectedTitle` after a question: its first picture, its links, its row, and its row of the
/// list.
void subDeleteTitle(Run& run);
/// Takes the selected recipe into the meal or out of it.
void subListToggleMeal(Run& run);

}  // namespace pantrigo
