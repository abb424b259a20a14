#pragma once

#include "core/run.h"

namespace pantrigo {

/// The numbers are those that the answer has as a whole number.
enum class FilterVerdict : int { Matches = -1, Differs = 0, NoFilter = 9 };

/// Tests the recipe on show against the filters of the main window. Not all of them have to agree: of the filters that
/// are set, the last in their order decides. Errors: 438 for a filter on the source; 13 for a nutrition filter that is
/// no number.
[[nodiscard]] FilterVerdict funMatchesFilters(Run& run);

}  // namespace pantrigo
