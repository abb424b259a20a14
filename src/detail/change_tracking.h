#pragma once

#include "core/run.h"

namespace pantrigo {

/// Asks, when something was changed, whether the changes may be lost. Gives true when they are to be kept; a Yes clears
/// the mark.
[[nodiscard]] bool funKeepChanges(Run& run);

/// Whether the title is empty, which is reported.
[[nodiscard]] bool funNoTitle(Run& run);

/// A category box, the number of people or a time was changed.
void detailChanged(Run& run);
void txtComments_Change(Run& run);
void txtMethod_Change(Run& run);
void lstHealth_Click(Run& run);
void lstOther_Click(Run& run);
/// Switches between people served and items made.
void lblServes_Click(Run& run);

}  // namespace pantrigo
