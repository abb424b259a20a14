#pragma once

#include <vector>

#include "ratios.h"

namespace pantrigo::bench {

/// Registers the benchmarks of showing and saving one recipe in the detail window, each beside the same reads and
/// writes by prepared statements of the engine; gives what is to be compared.
[[nodiscard]] std::vector<Ratio> registerRecipeBenchmarks();

}  // namespace pantrigo::bench
