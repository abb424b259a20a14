#pragma once

#include "core/run.h"

namespace pantrigo {

/// Stores the form as a new recipe, for the people catered for at the moment, and lists it when the filters let it
/// through. Refused when a check fails, and when a recipe has the title.
void subAddRecipe(Run& run);

/// Stores the form into the recipe that has its title, whichever was loaded. A new title and nothing else changed
/// renames the loaded recipe; a new title together with other changes is refused. The list follows.
void subUpdateRecipe(Run& run);

}  // namespace pantrigo
