#pragma once

#include "core/run.h"

namespace pantrigo {

// The window that shows the lines of a text file.

/// With `gImportFile` empty shows the log that has been opened for the window, all its lines; else a preview of the
/// file that `gImportFile` names, its first 2001 lines. Empty lines are left out. Errors 53, 76, 75 when the file can't
/// be read.
void frmView_Load(Run& run);

/// Prints the log of the last import, whatever is on show. Error 53 when there is none; once it is open, failures of
/// the printer are passed over.
void printImportLog(Run& run);

}  // namespace pantrigo
