#pragma once

namespace pantrigo::bench {

/// Whether the real windows step through enough recipes in a second, each of 20 ingredients and 5 links and without a
/// picture; prints how many. Needs a QApplication that stands.
[[nodiscard]] bool windowShowsRecipesQuickly();

}  // namespace pantrigo::bench
