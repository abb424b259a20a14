#pragma once

namespace pantrigo::bench {

/// Largest write-ahead log, in bytes, while 10,000 single updates run: with a table cursor that stands open in the
/// middle of a walk, and without one. Prints both, and gives whether the cursor makes the log no larger.
bool standingCursorKeepsTheLogSmall();

}  // namespace pantrigo::bench
