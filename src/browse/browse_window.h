#pragma once

#include "core/run.h"

namespace pantrigo {

// Events of the main window.

/// Works out `gScale` from the screen, enlarges the window and all its controls, and shows the first filter page.
void frmBrowse_Load(Run& run);
void frmBrowse_Activate(Run& run);
/// A minimised main window hides the detail window.
void frmBrowse_Resize(Run& run);
/// Esc ends the program at once.
void frmBrowse_KeyPress(Run& run, int key);
/// Ends the program; the store is closed when everything that is running has been left.
[[noreturn]] void frmBrowse_Unload(Run& run);

}  // namespace pantrigo
