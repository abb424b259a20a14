#pragma once

#include "core/run.h"

namespace pantrigo {

/// Finds the first title at or after the one typed, and shows its recipe. Changes are asked about first.
void subFindRecipe(Run& run);

}  // namespace pantrigo
