#pragma once

#include "core/run.h"

namespace pantrigo {

/// Takes the recipe whose title is typed into the meal or out of it, at once and apart from any update.
void subToggleMeal(Run& run);

}  // namespace pantrigo
