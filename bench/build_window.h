#pragma once

namespace pantrigo::bench {

/// Whether the real window adds no more to the build of the list of all titles than it may; prints the times. Needs a
/// QApplication that stands.
[[nodiscard]] bool windowKeepsUpWithTheBuild();

}  // namespace pantrigo::bench
