#pragma once

#include "core/run.h"

namespace pantrigo {

// The dialog of the kind that `gCategoryTable` names, opened from the window that `gCategoryCaller` names. Each of the
// three actions takes effect on the store and on the lists of both windows at once, and closes the dialog whatever came
// of it.

/// Titles the dialog, and puts the present choice of the calling window into the box: the text of a combo box, the
/// first selected row of a list, at most as long as the box takes.
void frmCategory_Load(Run& run);

/// Adds the category in the box, unless there is one of that name.
void addTypedCategory(Run& run);

/// Renames the category that stood in the box at the start to what stands there now, unless that name is taken. Recipes
/// hold the id and need no change.
void renameCategory(Run& run);

/// Removes the category in the box, unless a stored recipe has it, after a question.
void deleteCategory(Run& run);

/// Empties the box and goes there.
void clearCategory(Run& run);

/// Closes the dialog. The detail window keeps what was typed into it.
void leaveCategory(Run& run);

}  // namespace pantrigo
