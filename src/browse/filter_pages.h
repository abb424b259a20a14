#pragma once

#include "core/run.h"

namespace pantrigo {

/// Shows or hides the controls of the first filter page, in their order.
void subSetFilters(Run& run, bool visible);

/// The same for the continued page.
void subSetFiltersContinued(Run& run, bool visible);

}  // namespace pantrigo
