#pragma once

#include <filesystem>

namespace pantrigo::bench {

/// How many recipes the made store holds, and what one is about, in bytes.
inline constexpr long recipeCount = 100000;
inline constexpr long recipeBytes = 1500;

/// Its categories, and how many recipes have each. Which ones is independent of each other, but that no recipe has two
/// courses.
inline constexpr const char* mainCourse = "Main course";   // 50,000
inline constexpr const char* soupCourse = "Soup";          // 10,000
inline constexpr const char* commonHealth = "Vegetarian";  // 50,000
inline constexpr const char* frequentHealth = "Low fat";   // 20,000
inline constexpr const char* rareHealth = "Nut free";      // 500
inline constexpr const char* frequentOther = "Quick";      // 20,000
inline constexpr const char* rareOther = "For a crowd";    // 500

/// The folder of a made store of `recipeCount` recipes, from a seeded generator; made at the first call and kept in the
/// build folder for the next run.
[[nodiscard]] std::filesystem::path largeStoreFolder();

/// A folder with a store of the same options and no recipes.
[[nodiscard]] std::filesystem::path emptyStoreFolder();

}  // namespace pantrigo::bench
