#pragma once

#include "core/run.h"
#include "maintenance/option_table.h"

namespace pantrigo {

/// Fills the dialog from the row of options, and centres it.
void frmOptions_Load(Run& run);

/// Puts the sizes and the cup's unit of a measurement system that was just chosen into the dialog, over what stands
/// there.
void takeStandard(Run& run, const MeasurementStandard& standard);

/// Stores the options, lets the tool bars and the energy filter follow at once, and closes the dialog. When a size is
/// no number, says so, goes to its box and stores nothing.
void storeOptions(Run& run);

}  // namespace pantrigo
