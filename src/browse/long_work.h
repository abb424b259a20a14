#pragma once

#include "core/run.h"

namespace pantrigo {

// What long work of the main window has in common: it shuts out the commands, shows its progress and lets Stop in.

/// Puts the window into the running state: all buttons sunken, Stop in the place of Filter, busy.
void subStopOn(Run& run);
/// Gives the window back: all buttons up, Filter in the place of Stop, not busy.
void subStopOff(Run& run);

/// Counts a row that was listed. Every 100th shows the count in the caption of the list and lets waiting events in.
/// Gives whether Stop was pressed, which it forgets: the work is to end.
[[nodiscard]] bool funListTick(Run& run, long& rowCount);

}  // namespace pantrigo
