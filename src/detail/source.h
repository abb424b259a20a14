#pragma once

#include "core/run.h"

namespace pantrigo {

/// Asks for the source of the recipe on show. Refused without a title, and for a recipe that was loaded with a source.
void subSource(Run& run);

// Events of the source dialog.

/// Starts with nothing entered.
void frmSource_Load(Run& run);
/// OK takes the text without the blanks around it.
void takeSource(Run& run);
/// Takes nothing; the recipe's window keeps its edits.
void cancelSource(Run& run);

}  // namespace pantrigo
