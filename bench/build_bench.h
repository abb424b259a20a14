#pragma once

#include <vector>

#include "ratios.h"

namespace pantrigo::bench {

/// Registers the builds of the title list by the program's own command, from the filters to the caption, each with its
/// plain loop of the engine; gives what is to be compared.
[[nodiscard]] std::vector<Ratio> registerBuildBenchmarks();

}  // namespace pantrigo::bench
