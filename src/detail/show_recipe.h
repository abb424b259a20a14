#pragma once

#include "core/run.h"

namespace pantrigo {

/// Loads the recipe `gSelectedTitle` from the store into the form; blanks the form when it is empty, and leaves it as
/// it stands when there is no such recipe. Error 6 for a nutrition value that no single holds.
void subShowRecipe(Run& run);

}  // namespace pantrigo
