#pragma once

#include <filesystem>

namespace pantrigo {

/// Texts of the small store that the tests compare with: a no-break blank and breaks of two kinds.
inline constexpr const char* pieComment = "Serve\u00a0warm.\r\nKeeps two days.";
inline constexpr const char* pieMethod = "Peel the apples.\r\n\r\nBake.\nCool.";

/// Makes a store in the folder with three recipes, "Apple Pie", "Beef Stew" (in the meal) and "Carrot Cake", courses, a
/// nationality, two health categories of which the pie has the second, and three unit words.
void makeSmallStore(const std::filesystem::path& folder);

/// Adds recipes "Recipe 0001", "Recipe 0002" and so on to the store in the folder, up to 9999.
void addRecipes(const std::filesystem::path& folder, int count);

}  // namespace pantrigo
