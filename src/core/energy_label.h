#pragma once

#include "core/run.h"

namespace pantrigo {

/// Names the unit of the main window's energy filter, as the options have it.
void showEnergyUnit(Run& run);

}  // namespace pantrigo
