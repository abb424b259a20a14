#pragma once

#include <filesystem>
#include <string>

namespace pantrigo::bench {

/// How many recipes the store has, and what each has to show besides its texts: rows of ingredients, and links.
inline constexpr long storedRecipes = 200;
inline constexpr int storedIngredients = 20;
inline constexpr int storedHealthLinks = 3;
inline constexpr int storedOtherLinks = 2;

/// The title of a recipe by its id, from 1 up.
[[nodiscard]] std::string recipeTitle(long id);

/// A method of fifteen sentences, and the letter behind them.
[[nodiscard]] std::string recipeMethod(char letter);

/// Makes a folder of that name anew, in the current one, with a store of such recipes.
[[nodiscard]] std::filesystem::path recipeStoreFolder(const std::string& name);

}  // namespace pantrigo::bench
