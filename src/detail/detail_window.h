#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the detail window.

void frmDetail_Load(Run& run);
/// Reloads the recipe, unless `gKeepDetailOnActivate` asks to leave the form alone once.
void frmDetail_Activate(Run& run);
/// Page Up and Page Down step through the list.
void frmDetail_KeyDown(Run& run, int key);
/// Esc hides the window, after the question about changes.
void frmDetail_KeyPress(Run& run, int key);
/// Exit, Esc and the close mark: hides the window unless its changes are to be kept.
void leaveDetail(Run& run);
/// Blanks the form for a new recipe, after the question about changes.
void clearRecipe(Run& run);

}  // namespace pantrigo
