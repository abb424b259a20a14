#pragma once

#include "core/run.h"

namespace pantrigo {

// The checks that stand before a save, in their order. Each reports the first thing that is wrong, puts the focus where
// it can be mended, and then gives false.

/// The title is given, the four categories exist, the title holds no wildcard, and the number of people is a number or
/// empty.
[[nodiscard]] bool canBeNamed(Run& run);

/// Both times are numbers or empty.
[[nodiscard]] bool hasValidTimes(Run& run);

}  // namespace pantrigo
