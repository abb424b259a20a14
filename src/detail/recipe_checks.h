#pragma once

#include "core/run.h"

namespace pantrigo {

// The checks that stand before a save, in their order. Each reports the first thing that is wrong and then gives false.
// A title or number at fault gets the focus; a missing title and an unknown category leave it where it is.

/// The title is given, the four categories exist, the title holds no wildcard, and the number of people is a number or
/// empty.
[[nodiscard]] bool canBeNamed(Run& run);

/// Both times are numbers or empty.
[[nodiscard]] bool hasValidTimes(Run& run);

}  // namespace pantrigo
