#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace pantrigo::bench {

/// Two benchmarks of one run that are compared: the time of the first over that of the second, and the bound.
struct Ratio {
  std::string name;
  std::string measured;
  std::string yardstick;
  double bound;
};

/// Runs the registered benchmarks (each several times, the medians count) and prints a line a ratio. Gives 1 when a
/// bound is missed.
int runRatios(int argumentCount, char** argumentValues, const std::vector<Ratio>& ratios);

}  // namespace pantrigo::bench
