#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pantrigo {

using Random = std::mt19937;

/// Recipe fields that hold one number, in the order of the filter boxes: the two times in minutes, energy in
/// kilojoules, and the other nutrients in grams or milligrams.
inline constexpr std::array<std::string_view, 11> numberFields{"PrepareTime",   "CookTime", "Energy", "Protein",
                                                               "Carbohydrates", "Fibre",    "Fat",    "Cholesterol",
                                                               "Sodium",        "Calcium",  "Iron"};

/// Kinds of category of which a recipe has one, then those of which it has any number.
inline constexpr std::array<std::string_view, 4> singleKinds{"Nationality", "Course", "Cooking", "Ease"};
inline constexpr std::array<std::string_view, 2> listKinds{"Health", "Other"};

/// Descriptions that exist in each of the six tables; the place in the array, counted from 1, is the id.
inline constexpr std::array<std::string_view, 5> categories{"Chef's", "crème", "Dinner", "low salt", "Übrig"};

struct ModelRecipe {
  long id = 0;
  std::string title;
  std::string ingredients;
  std::string source;
  std::string comment;
  std::string method;
  bool meal = false;
  /// An id of each single kind, nothing where the recipe has none.
  std::array<std::optional<long>, singleKinds.size()> category;
  std::array<std::set<long>, listKinds.size()> categorySet;
  std::array<std::optional<double>, numberFields.size()> numbers;
};

/// A word or a piece of one, such as stands in the texts of the recipes.
[[nodiscard]] std::string anyWord(Random& random);

/// Recipes with all kinds of texts, in the order of their rows; no two titles are the same in the order of titles.
[[nodiscard]] std::vector<ModelRecipe> makeModel(Random& random, int count);

/// A store of the recipes and the categories in the folder.
void writeModel(const std::vector<ModelRecipe>& recipes, const std::filesystem::path& folder);

}  // namespace pantrigo
