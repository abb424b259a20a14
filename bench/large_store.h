#pragma once

#include <filesystem>

namespace pantrigo::bench {

/// How many recipes the made store holds, and what one is about, in bytes.
inline constexpr long recipeCount = 100000;
inline constexpr long recipeBytes = 1500;

/// The folder of a made store of `recipeCount` recipes, from a seeded generator; made at the first call and kept in the
/// build folder for the next run.
[[nodiscard]] std::filesystem::path largeStoreFolder();

/// A folder with a store of the same options and no recipes.
[[nodiscard]] std::filesystem::path emptyStoreFolder();

}  // namespace pantrigo::bench
