#include "build_bench.h"
#include "list_bench.h"
#include "log_size.h"
#include "ratios.h"
#include "recipe_bench.h"

int main(int argumentCount, char** argumentValues) {
  using namespace pantrigo::bench;
  const bool logKept = standingCursorKeepsTheLogSmall();
  std::vector<Ratio> ratios{{"walk over the titles", "WalkCursor", "WalkPlain", 1.0},
                            {"seek of a title", "SeekCursor", "SeekPlain", 2.0},
                            {"start-up, logic alone", "StartLogic", "StartPlain", 3.0},
                            {"shown ingredients, 1,000 rows", "IngredientsStored", "IngredientsHeld", 1.5}};
  for (Ratio& ratio : registerListBenchmarks()) ratios.push_back(std::move(ratio));
  for (Ratio& ratio : registerBuildBenchmarks()) ratios.push_back(std::move(ratio));
  for (Ratio& ratio : registerRecipeBenchmarks()) ratios.push_back(std::move(ratio));
  const int status = runRatios(argumentCount, argumentValues, ratios);
  return logKept ? status : 1;
}
