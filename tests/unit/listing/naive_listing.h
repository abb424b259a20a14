#pragma once

#include <array>
#include <set>
#include <string>
#include <vector>

#include "unit/listing/model_recipes.h"

namespace pantrigo {

/// What a person can say about which recipes to list. An empty text is a filter that is not set.
struct FilterRecord {
  std::string title;
  std::string ingredient;
  std::array<std::string, singleKinds.size()> category;
  /// Selected rows of the Health and the Other list, counted from 0 in the order of the descriptions.
  std::array<std::set<int>, listKinds.size()> selected;
  bool mealOnly = false;
  std::string source;
  std::array<std::string, numberFields.size()> limits;
  /// Whether the limit is the least and not the most.
  std::array<bool, numberFields.size()> atLeast{};
  std::string comments;
  std::string method;
};

/// Titles that the filters leave, in the order in which they are to be listed, found by looking at every recipe.
/// `kilojoules` says what the energy box is given in.
[[nodiscard]] std::vector<std::string> naiveTitles(const std::vector<ModelRecipe>& recipes, const FilterRecord& filters,
                                                   bool kilojoules);

}  // namespace pantrigo
