#pragma once

#include "core/run.h"

namespace pantrigo {

/// Closes a dialog, and lets an open recipe keep what was typed: the detail window doesn't load it anew when it is
/// active again.
void leaveKeepingDetail(Run& run, Form& dialog);

}  // namespace pantrigo
