#pragma once

#include <vector>

#include "ratios.h"

namespace pantrigo::bench {

/// Plain loops over the recipes of the most frequent course and of the most frequent health category, in the order in
/// which they were stored.
inline constexpr const char* courseYardstick =
    "select Title, Meal from Recipe indexed by RecipeIdxCourse where Course = 1 order by RowNumber";
inline constexpr const char* healthYardstick =
    "select Title, Meal from RecipeHealth indexed by RecipeHealthIdxHealthId cross join Recipe "
    "on Recipe.RecipeId = RecipeHealth.RecipeId where HealthId = 1 order by RecipeHealth.RowNumber";

/// Registers the benchmarks of the list's queries and walks, each beside its yardstick; gives what is to be compared.
[[nodiscard]] std::vector<Ratio> registerListBenchmarks();

}  // namespace pantrigo::bench
