#pragma once

#include <vector>

#include "ratios.h"

namespace pantrigo::bench {

/// Registers the benchmarks of the list's queries and walks, each beside its yardstick; gives what is to be compared.
[[nodiscard]] std::vector<Ratio> registerListBenchmarks();

}  // namespace pantrigo::bench
