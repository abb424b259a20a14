#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the list of titles.

/// Opens the selected row; a blank recipe when there is none.
void lstTitles_DblClick(Run& run);
/// Enter opens the selected row, Delete deletes its recipe.
void lstTitles_KeyDown(Run& run, int key);
/// Paints the row that has just been selected in the colours of its recipe.
void lstTitles_SelChange(Run& run);

// The moves through the list. The new row is selected and gets the focus.
void subListFirst(Run& run);
void subListPrevious(Run& run);
void subListNext(Run& run);
void subListLast(Run& run);

}  // namespace pantrigo
