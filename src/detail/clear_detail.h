#pragma once

#include "core/run.h"

namespace pantrigo {

/// Blanks the form and the working copy of the recipe.
void subClearDetail(Run& run);

}  // namespace pantrigo
