#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/global.h"
#include "forms/frmNutrition.h"

namespace pantrigo {

/// Puts `gRecipe` on the recipe of that title; gives whether there is one.
[[nodiscard]] bool seekTitle(Global& global, std::string_view title);

/// Takes the recipe that `gRecipe` stands on into the meal or out of it, at once; gives whether it is in it now. Error
/// 3021 without a current row.
bool flipMeal(Global& global);

/// Gives the next number of a counter of `System` ("RecipeId" and the like), which is stored before it is used: a
/// failure after that burns it. Error 94 for a counter that is Null.
[[nodiscard]] long giveId(Global& global, std::string_view counter);

/// Removes the rows of a table that belong to a recipe, by its id as text. The query text stays in `gSqlText`.
void deleteRowsOfRecipe(Global& global, std::string_view table, std::string_view recipeId);

/// Removes a recipe with its links: those first, each table for itself.
void deleteRecipe(Global& global, std::string_view recipeId);

/// The suffix of the picture file after the one of the given suffix: none, "a", "b" and so on by character code.
[[nodiscard]] std::string nextPictureSuffix(std::string_view suffix);

/// A nutrition value of a recipe: its field, where it is held for the open recipe, the box that it is typed into, and
/// whether entering it marks the menu entry. Cholesterol alone does not, though a recipe that is loaded with it is
/// marked.
struct NutritionValue {
  std::string_view field;
  float Global::*value;
  TextBox FrmNutrition::*box;
  bool marksEntry;
};

/// The nine values in the order in which they are stored and checked.
inline constexpr std::array<NutritionValue, 9> nutritionValues{{
    {"Energy", &Global::gEnergy, &FrmNutrition::txtEnergy, true},
    {"Protein", &Global::gProtein, &FrmNutrition::txtProtein, true},
    {"Cholesterol", &Global::gCholesterol, &FrmNutrition::txtCholesterol, false},
    {"Carbohydrates", &Global::gCarbohydrates, &FrmNutrition::txtCarbohydrates, true},
    {"Sodium", &Global::gSodium, &FrmNutrition::txtSodium, true},
    {"Fibre", &Global::gFibre, &FrmNutrition::txtFibre, true},
    {"Calcium", &Global::gCalcium, &FrmNutrition::txtCalcium, true},
    {"Fat", &Global::gFat, &FrmNutrition::txtFat, true},
    {"Iron", &Global::gIron, &FrmNutrition::txtIron, true},
}};

}  // namespace pantrigo
