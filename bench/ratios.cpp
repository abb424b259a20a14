#include "ratios.h"

#include <iomanip>
#include <iostream>
#include <map>

namespace pantrigo::bench {

namespace {

/// Keeps the median of each benchmark beside the usual listing.
class MedianKeeper : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
    ConsoleReporter::ReportRuns(runs);
  }

  [[nodiscard]] double median(const std::string& name) const {
    const auto found = medians_.find(name);
    return found == medians_.end() ? 0 : found->second;
  }

 private:
  std::map<std::string, double> medians_;
};

}  // namespace

int runRatios(int argumentCount, char** argumentValues, const std::vector<Ratio>& ratios) {
  benchmark::Initialize(&argumentCount, argumentValues);
  MedianKeeper keeper;
  benchmark::RunSpecifiedBenchmarks(&keeper);
  int status = 0;
  std::cout << std::fixed << std::setprecision(2);
  for (const Ratio& ratio : ratios) {
    const double measured = keeper.median(ratio.measured);
    const double yardstick = keeper.median(ratio.yardstick);
    if (measured == 0 || yardstick == 0) continue;
    const double value = measured / yardstick;
    const bool kept = value <= ratio.bound;
    std::cout << (kept ? "kept    " : "MISSED  ") << ratio.name << ": " << value << " of at most " << ratio.bound
              << '\n';
    if (!kept) status = 1;
  }
  return status;
}

}  // namespace pantrigo::bench
