#pragma once

#include "core/run.h"

namespace pantrigo {

// What the last import left behind: its log, and the list of the recipes that it added.

/// Shows the log of the last import, or says that there was nothing to log.
void showImportLog(Run& run);

/// Lists the recipes that the last import added, in title order, or says that there are none. A title that is no longer
/// in the store is passed over. Nothing while the window is busy.
void subListLastImported(Run& run);

}  // namespace pantrigo
