#pragma once

#include "core/run.h"

namespace pantrigo {

/// Asks for the number of people to cater for; the label beside the number served and the quantities of the recipe on
/// show follow at once.
void subEditSettings(Run& run);

// Events of the settings dialog.

/// Shows the stored number; none is an empty box.
void frmSettings_Load(Run& run);
/// OK stores the number, or refuses it and stays open.
void storeSettings(Run& run);
/// Stores nothing; the recipe's window keeps its edits.
void cancelSettings(Run& run);

}  // namespace pantrigo
