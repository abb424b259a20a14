#pragma once

#include <array>
#include <string_view>

#include "core/global.h"

namespace pantrigo {

/// Puts `gRecipe` on the recipe of that title; gives whether there is one.
[[nodiscard]] bool seekTitle(Global& global, std::string_view title);

/// Takes the recipe that `gRecipe` stands on into the meal or out of it, at once; gives whether it is in it now. Error
/// 3021 without a current row.
bool flipMeal(Global& global);

/// A nutrition value of a recipe: its field, and where it is held for the open recipe.
struct NutritionValue {
  std::string_view field;
  float Global::*value;
};

/// The nine values in the order in which they are stored.
inline constexpr std::array<NutritionValue, 9> nutritionValues{{
    {"Energy", &Global::gEnergy},
    {"Protein", &Global::gProtein},
    {"Cholesterol", &Global::gCholesterol},
    {"Carbohydrates", &Global::gCarbohydrates},
    {"Sodium", &Global::gSodium},
    {"Fibre", &Global::gFibre},
    {"Calcium", &Global::gCalcium},
    {"Fat", &Global::gFat},
    {"Iron", &Global::gIron},
}};

}  // namespace pantrigo
